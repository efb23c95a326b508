#include "support/clsTrace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "memory/Desktop.h"
#include "memory/Windows1252.h"
#include "support/ErrorOf.h"
#include "support/ThreadState.h"
#include "support/Trace.h"

namespace orvane {
namespace {

using namespace std::string_literals;

constexpr wchar_t File[] = L"C:\\Logs\\Debug.dbg";
constexpr char T[] = "01/Jan/24 @ 9:05:07";

/// A network with a listener, which may stop answering.
struct FakeTcp : Tcp {
  struct Connection : TcpConnection {
    explicit Connection(FakeTcp& network) : tcp(network) {}
    bool Send(std::span<const std::byte> bytes) override {
      ++tcp.sends;
      tcp.received.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
      return tcp.answers;
    }
    FakeTcp& tcp;
  };
  std::unique_ptr<TcpConnection> Connect(const std::wstring&, std::uint16_t port) override {
    return port == 80 ? std::make_unique<Connection>(*this) : nullptr;
  }

  bool answers = true;
  int sends = 0;
  std::string received;
};

class clsTraceTest : public testing::Test {
 protected:
  clsTraceTest() {
    m_desktop.files.AddFolder(L"C:\\Logs");
    m_state.debug = &m_trace;
    ThreadState::SetCurrent(&m_state);
  }
  ~clsTraceTest() override { ThreadState::SetCurrent(nullptr); }

  std::string Log() { return m_desktop.files.Content(File).value_or("(none)"); }

  static std::string Line(const std::string& rest) { return T + rest + "\r\n"; }

  std::ptrdiff_t Boxes() const {
    return std::ranges::count(m_desktop.effects.All(), "MessageBox", &memory::Effect::call);
  }

  memory::Desktop m_desktop;
  FakeTcp m_tcp;
  CodePage m_page{memory::Windows1252()};
  clsTrace m_trace{m_desktop.files,  m_desktop.boxes, m_desktop.clock,
                   m_desktop.locale, m_tcp,           m_page};
  ThreadState m_state;
};

TEST_F(clsTraceTest, LinesAndIndentation) {
  m_trace.Push(L"too early");
  EXPECT_EQ(nullptr, ActiveDebugTrace());
  EXPECT_TRUE(m_trace.Initialize(File, 0));
  m_trace.Push(L"A");
  m_trace.Output(L"x=\x20AC\x0416", 0);
  m_trace.Push(L"B");
  m_trace.Output(L"bad", clsTrace::FlagError);
  m_trace.Pop(true);
  m_trace.Output(L"left", clsTrace::FlagExit);
  m_trace.Pop(false);
  m_trace.Output(L"bare", clsTrace::FlagNoTime);
  m_trace.Output(L"", clsTrace::FlagEntry | clsTrace::FlagExit | clsTrace::FlagNoTime);
  m_trace.Terminate();
  m_trace.Output(L"gone", 0);
  EXPECT_EQ(Line(" >  A") + Line("      x=\x80?") + Line(" >    B") + Line("  !     bad") +
                Line(" <      (Exit)") + Line(" <    left") + Line(" <  (Exit)") +
                "    bare\r\n >  \r\n",
            Log());
}

TEST_F(clsTraceTest, FileIsAppendedToOrEmptied) {
  m_desktop.files.AddFile(File, "old\r\n");
  m_trace.Initialize(File, clsTrace::FlagAutoCommit);
  m_trace.Output(L"1", clsTrace::FlagNoTime);
  // Each line is complete on the disk as soon as it is written.
  EXPECT_EQ("old\r\n    1\r\n", Log());
  m_trace.Push(L"deep");
  m_trace.Initialize(File, clsTrace::FlagReset);
  m_trace.Output(L"2", clsTrace::FlagNoTime);
  EXPECT_EQ("    2\r\n", Log());
}

TEST_F(clsTraceTest, EncipheredRecords) {
  m_trace.Initialize(File, clsTrace::FlagEncrypt | clsTrace::FlagAutoCommit);
  m_trace.Output(L"\x20AC", clsTrace::FlagNoTime);
  m_trace.Output(std::wstring(70'000, L'x'), 0);

  std::string log = Log();
  ASSERT_EQ(4u + 5 + 4 + 65'535, log.size());  // what a record's length can say
  m_trace.EncryptBytes(std::as_writable_bytes(std::span(log).subspan(4, 5)));
  m_trace.EncryptBytes(std::as_writable_bytes(std::span(log).subspan(13)));
  EXPECT_EQ("\x08\0\x05\0    \x80\x08\0\xFF\xFF"s + T + "    xx", log.substr(0, 38));
}

TEST_F(clsTraceTest, FileThatCannotBeOpened) {
  for (const wchar_t* answer : {L"yes", L"no"}) m_desktop.answers.Add(answer);
  m_trace.Initialize(L"C:\\Nowhere\\x.dbg", clsTrace::FlagAutoCommit);
  m_trace.Push(L"A");
  EXPECT_EQ(1, Boxes());
  EXPECT_EQ(memory::Effect::Value(L"Could not open the debugging output file!\r\n\r\n"
                                  L"Show this error again?"),
            m_desktop.effects.All().back().fields.at(1).second);
  m_trace.Output(L"x", 0);
  EXPECT_EQ(2, Boxes());
  m_trace.Output(L"x", 0);
  EXPECT_EQ(2, Boxes());
}

TEST_F(clsTraceTest, ErrorsAreLoggedAtTheExit) {
  const auto run = [](const wchar_t* operation, auto thrown) {
    TraceScope scope(operation);
    try {
      throw thrown;
    } catch (...) {
      scope.Caught();
    }
  };
  m_trace.Initialize(File, 0);
  orvane::Log(L"n=", 12, L"  b=", true, L"  h=", Hex(MenuHandle{0xABC}), L"  s=", L"t"s);
  run(L"A", Error(Error::TypeMismatch, L"Type mismatch", L"Inner"));
  { TraceScope scope(L"B"); }  // an error of earlier is not this operation's
  m_state.pending = {-1, L"", L"bad", 2};
  m_trace.CheckForError();
  m_state.pending = {};
  m_trace.CheckForError();
  {
    TraceScope scope(L"C");
    ThreadState::SetCurrent(nullptr);  // it may go before the scope ends
    scope.Caught();
  }
  EXPECT_EQ(Line("    n=12  b=True  h=0x00000ABC  s=t") + Line(" >  A") +
                Line("  !   *E* 0x0000000D - Type mismatch (Inner)") + Line(" <    (Exit)") +
                Line(" >  B") + Line(" <    (Exit)") + Line("  ! *E* 0xFFFFFFFF - bad - 2") +
                Line(" >  C"),
            Log());
  ThreadState::SetCurrent(&m_state);
  run(L"D", std::bad_alloc());
  EXPECT_EQ(Error::OutOfMemory, m_state.pending.number);
}

TEST_F(clsTraceTest, Timers) {
  m_trace.Initialize(File, 0);
  m_trace.TimerStart(1);
  m_desktop.clock.Advance(30);
  m_trace.TimerPause(1);
  EXPECT_EQ(30, m_trace.GetTime(1));
  m_desktop.clock.Advance(1000);
  m_trace.TimerResume(1);
  m_desktop.clock.Advance(1);
  EXPECT_EQ(31, m_trace.TimerStop(L"ReadConfig", 1));
  EXPECT_TRUE(Log().ends_with("    ReadConfig: 31ms\t(Timer 1)\r\n")) << Log();
  EXPECT_EQ(Error::OutOfRange, test::ErrorOf([&] { m_trace.TimerStart(0); }));
  EXPECT_EQ(Error::OutOfRange, test::ErrorOf([&] { m_trace.TimerStart(17); }));
  // The counter passing from its greatest to its least signed value is an overflow.
  m_desktop.clock.SetTicks(0x7FFFFFFF);
  m_trace.TimerStart(16);
  m_desktop.clock.SetTicks(0x80000000);
  EXPECT_EQ(Error::Overflow, test::ErrorOf([&] { m_trace.TimerStop(L"", 16); }));
}

TEST_F(clsTraceTest, EncipheredTexts) {
  // "QWX": 'Q'^'Q', 'W'^0, 'X' ^ 'W' ^ 'W' * 2 = 0x58 ^ 0x57 ^ 0xAE = 0xA1
  EXPECT_EQ(L"\0W\x00A1"s, m_trace.EncryptStringAscii(L"QWX"));
  // Two bytes a character: 'Q' and 0 meet 'Q' and 0, 'W' and 0 meet 'W' ^ 'W' * 2 and 0.
  EXPECT_EQ(L"\0\x00AE"s, m_trace.EncryptString(L"QW"));
  const std::wstring wide = L"\x0416\U0001F600 unpaired \xDC00 and \xD83D";
  EXPECT_EQ(wide, m_trace.EncryptString(m_trace.EncryptString(wide)));
  m_trace.Password(L"other");
  EXPECT_NE(L"\0W\x00A1"s, m_trace.EncryptStringAscii(L"QWX"));

  EXPECT_EQ(L"~128000", m_trace.PasswordToHex(L"\x20AC\0"s));
  EXPECT_EQ(L"\x20AC\x7", m_trace.HexToPassword(L"1287"));
  for (const wchar_t* bad : {L"~065", L"256", L"-01"})
    EXPECT_THROW(m_trace.HexToPassword(bad), Error) << bad;
}

TEST_F(clsTraceTest, NetworkLines) {
  const auto message = [](const std::string& text) {
    const char length[] = {static_cast<char>(text.size()), static_cast<char>(text.size() >> 8)};
    return std::string(length, 2) + text;
  };
  m_trace.InternetPort(L" 80 ");
  m_trace.Initialize(File, clsTrace::FlagInternet);
  m_trace.Push(L"A");
  m_trace.Output(L"\x20AC\x0416", 0);
  m_trace.Pop(false);
  m_trace.Output(std::wstring(70'000, L'x'), 16);
  const std::string greeting = message("0 0 Orvane - Orvane Shell Extension");
  EXPECT_EQ(greeting + message("1 4 A") + message("1 0 \x80?") + message("1 8 ") +
                message("1 16 " + std::string(65'530, 'x')),
            m_tcp.received);
  EXPECT_EQ("(none)", Log());  // no file without FlagAutoCommit

  m_tcp.received.clear();
  m_trace.Initialize(File, 0);
  m_trace.Output(L"file only", 0);
  EXPECT_EQ("", m_tcp.received);
  m_trace.Initialize(L"", clsTrace::FlagInternet);
  EXPECT_EQ(greeting, m_tcp.received);
}

TEST_F(clsTraceTest, ListenerThatIsNotThereOrStopsReading) {
  const auto flags = clsTrace::FlagInternet | clsTrace::FlagAutoCommit | clsTrace::FlagReset;
  for (const wchar_t* nowhere : {L"81", L"65616", L"-65456"}) {  // 16 bits of the others say 80
    m_trace.InternetPort(nowhere);
    m_trace.Initialize(File, flags);
    m_trace.Output(L"x", clsTrace::FlagNoTime);
    EXPECT_EQ("    x\r\n", Log());
  }
  m_trace.InternetPort(L"80");
  m_trace.Initialize(File, flags);
  m_tcp.answers = false;
  for (int i = 0; i < 10; ++i) m_trace.Output(L"x", 0);
  EXPECT_EQ(2, m_tcp.sends) << "the greeting, and one wait for the whole log";
  EXPECT_EQ(0, Boxes());
}

}  // namespace
}  // namespace orvane
