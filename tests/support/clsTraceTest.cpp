#include "support/clsTrace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

#include "platform/memory/Desktop.h"
#include "platform/memory/Windows1252.h"
#include "support/Error.h"
#include "support/ThreadState.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr wchar_t File[] = L"C:\\Logs\\Debug.dbg";
constexpr char T[] = "01/Jan/24 @ 9:05:07";

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

  std::size_t Boxes() const {
    std::size_t boxes = 0;
    for (const auto& effect : m_desktop.effects.All()) boxes += effect.call == "MessageBox";
    return boxes;
  }

  memory::Desktop m_desktop;
  CodePage m_page{memory::Windows1252()};
  clsTrace m_trace{m_desktop.files,  m_desktop.boxes, m_desktop.clock,
                   m_desktop.locale, m_desktop.tcp,   m_page};
  ThreadState m_state;
};

TEST_F(clsTraceTest, DoesNothingBeforeItIsInitialised) {
  m_trace.Push(L"A");
  m_trace.Output(L"x", 0);
  m_trace.Pop(true);
  EXPECT_EQ("(none)", Log());
  EXPECT_EQ(0, m_trace.Indent());
  EXPECT_EQ(nullptr, ActiveDebugTrace());
}

TEST_F(clsTraceTest, LinesAndIndentation) {
  EXPECT_TRUE(m_trace.Initialize(File, 0));
  m_trace.Push(L"A");
  m_trace.Output(L"x=\x20AC\x0416", 0);
  m_trace.Push(L"B");
  m_trace.Output(L"bad", clsTrace::FlagError);
  m_trace.Pop(true);
  m_trace.Output(L"left", clsTrace::FlagExit);
  EXPECT_EQ(0, m_trace.Indent());
  m_trace.Pop(false);
  EXPECT_EQ(0, m_trace.Indent());
  m_trace.Output(L"bare", clsTrace::FlagNoTime);
  m_trace.Output(L"both", clsTrace::FlagEntry | clsTrace::FlagExit | clsTrace::FlagNoTime);
  m_trace.Output(L"", clsTrace::FlagEntry | clsTrace::FlagExit | clsTrace::FlagNoTime);
  m_trace.Terminate();
  m_trace.Output(L"gone", 0);
  EXPECT_EQ(Line(" >  A") + Line("      x=\x80?") + Line(" >    B") + Line("  !     bad") +
                Line(" <      (Exit)") + Line(" <    left") + Line(" <  (Exit)") +
                "    bare\r\n >  both\r\n >  \r\n",
            Log());
}

TEST_F(clsTraceTest, FileIsAppendedToOrEmptied) {
  m_desktop.files.AddFile(File, "old\r\n");
  m_trace.Initialize(File, clsTrace::FlagAutoCommit);
  m_trace.Output(L"1", clsTrace::FlagNoTime);
  // Each line is complete on the disk as soon as it is written.
  EXPECT_EQ("old\r\n    1\r\n", Log());
  m_trace.Push(L"deep");
  m_trace.Initialize(File, clsTrace::FlagReset | clsTrace::FlagNoTime);
  EXPECT_EQ(0, m_trace.Indent());
  m_trace.Output(L"2", clsTrace::FlagNoTime);
  m_trace.Terminate();
  EXPECT_EQ("    2\r\n", Log());
}

TEST_F(clsTraceTest, EncipheredRecords) {
  m_trace.Initialize(File, clsTrace::FlagEncrypt | clsTrace::FlagAutoCommit);
  m_trace.Output(L"\x20AC", clsTrace::FlagNoTime);
  m_trace.Output(std::wstring(70'000, L'x'), 0);
  m_trace.Terminate();

  const std::string log = Log();
  std::vector<std::string> lines;
  for (std::size_t at = 0; at + 4 <= log.size();) {
    ASSERT_EQ('\x08', log[at]);
    ASSERT_EQ('\0', log[at + 1]);
    const std::size_t size =
        static_cast<unsigned char>(log[at + 2]) + 256u * static_cast<unsigned char>(log[at + 3]);
    std::string line = log.substr(at + 4, size);
    ASSERT_EQ(size, line.size());
    m_trace.EncryptBytes(std::as_writable_bytes(std::span(line)));
    lines.push_back(line);
    at += 4 + size;
  }
  ASSERT_EQ(2u, lines.size());
  EXPECT_EQ("    \x80", lines[0]);
  EXPECT_EQ(65535u, lines[1].size());  // what a record's length can say
  EXPECT_EQ(std::string(T) + "    xx", lines[1].substr(0, 25));
}

TEST_F(clsTraceTest, FileThatCannotBeOpened) {
  m_trace.Initialize(L"C:\\Nowhere\\x.dbg", clsTrace::FlagAutoCommit);
  m_desktop.answers.Add(L"yes");
  m_desktop.answers.Add(L"no");
  m_trace.Push(L"A");
  EXPECT_EQ(1u, Boxes());
  const std::pair<std::string, memory::Effect::Value> text{
      "text", L"Could not open the debugging output file!\r\n\r\nShow this error again?"};
  const auto& fields = m_desktop.effects.All().back().fields;
  EXPECT_NE(fields.end(), std::ranges::find(fields, text));
  m_trace.Output(L"x", 0);
  EXPECT_EQ(2u, Boxes());
  EXPECT_FALSE(m_trace.ShowErrors());
  m_trace.Pop(false);
  EXPECT_EQ(2u, Boxes());
  EXPECT_EQ(0, m_trace.Indent());
}

TEST_F(clsTraceTest, FullDiskIsNotReported) {
  m_desktop.files.Add(memory::FileSystem::Trouble::Full, L"C:\\Logs");
  m_trace.Initialize(File, 0);
  m_trace.Output(L"x", 0);
  EXPECT_EQ(0u, Boxes());
}

TEST_F(clsTraceTest, PendingErrorIsLoggedAtTheExit) {
  m_trace.Initialize(File, 0);
  m_trace.Push(L"A");
  m_state.pending = {5, L"here", L"no good", 2};
  m_trace.Pop(true);
  m_state.pending = {-1, L"", L"bad", 0};
  m_trace.CheckForError();
  EXPECT_EQ(-1, m_state.pending.number);
  m_state.pending = {};
  m_trace.CheckForError();
  m_trace.Terminate();
  EXPECT_EQ(Line(" >  A") + Line("  !   *E* 0x00000005 - no good - 2 (here)") +
                Line(" <    (Exit)") + Line("  ! *E* 0xFFFFFFFF - bad"),
            Log());
}

TEST_F(clsTraceTest, ScopeLogsWhatItCaught) {
  m_trace.Initialize(File, 0);
  {
    TraceScope scope(L"Outer");
    orvane::Log(L"n=", 12, L"  b=", true, L"  h=", Hex(MenuHandle{0xABC}), L"  s=",
                std::wstring(L"t"));
    try {
      throw Error(Error::TypeMismatch, L"Type mismatch", L"Inner");
    } catch (...) {
      scope.Caught();
    }
  }
  // An error of earlier is not this operation's.
  { TraceScope scope(L"Next"); }
  m_trace.Terminate();
  EXPECT_EQ(Line(" >  Outer") + Line("      n=12  b=True  h=0x00000ABC  s=t") +
                Line("  !   *E* 0x0000000D - Type mismatch (Inner)") + Line(" <    (Exit)") +
                Line(" >  Next") + Line(" <    (Exit)"),
            Log());
}

TEST_F(clsTraceTest, ScopeOutlivesTheThreadsState) {
  m_trace.Initialize(File, 0);
  {
    TraceScope scope(L"A");
    ThreadState::SetCurrent(nullptr);
    scope.Caught();
  }
  m_trace.Terminate();
  EXPECT_EQ(Line(" >  A"), Log());
}

TEST_F(clsTraceTest, CaughtErrors) {
  const auto caught = [](auto thrown) {
    try {
      throw thrown;
    } catch (...) {
      return CaughtError();
    }
  };
  EXPECT_EQ(9, caught(Error(9, L"d", L"s")).number);
  EXPECT_EQ(L"d", caught(Error(9, L"d", L"s")).description);
  EXPECT_EQ(Error::OutOfMemory, caught(std::bad_alloc()).number);
  EXPECT_EQ(Error::Internal, caught(1).number);
}

TEST_F(clsTraceTest, HexForm) {
  EXPECT_EQ(L"0x00000000", clsTrace::ToHex(0));
  EXPECT_EQ(L"0x000000FF", clsTrace::ToHex(255));
  EXPECT_EQ(L"0xFFFFFFFF", clsTrace::ToHex(-1));
  EXPECT_EQ(L"0x80000000", clsTrace::ToHex(INT32_MIN));
}

TEST_F(clsTraceTest, Timers) {
  m_trace.Initialize(File, 0);
  m_trace.TimerStart(1);
  EXPECT_EQ(1'000'000, m_trace.GetTime(1));
  m_desktop.clock.Advance(30);
  m_trace.TimerPause(1);
  EXPECT_EQ(30, m_trace.GetTime(1));
  m_desktop.clock.Advance(1000);
  m_trace.TimerResume(1);
  m_desktop.clock.Advance(1);
  EXPECT_EQ(31, m_trace.TimerStop(L"", 1));
  EXPECT_EQ(31, m_trace.TimerStop(L"ReadConfig", 1));
  EXPECT_EQ(1'001'000, m_trace.GetTime(1));
  m_trace.Terminate();
  EXPECT_TRUE(Log().ends_with("    ReadConfig: 31ms\t(Timer 1)\r\n")) << Log();

  for (const int timer : {-1, 0, 17}) {
    EXPECT_THROW(m_trace.TimerStart(static_cast<std::int16_t>(timer)), Error);
    EXPECT_THROW(m_trace.GetTime(static_cast<std::int16_t>(timer)), Error);
    EXPECT_THROW(m_trace.TimerStop(L"", static_cast<std::int16_t>(timer)), Error);
  }
  // The counter passing from its greatest to its least signed value is an overflow.
  m_desktop.clock.SetTicks(0x7FFFFFFF);
  m_trace.TimerStart(16);
  m_desktop.clock.SetTicks(0x80000000);
  try {
    m_trace.TimerStop(L"", 16);
    ADD_FAILURE();
  } catch (const Error& error) {
    EXPECT_EQ(Error::Overflow, error.Number());
  }
}

TEST_F(clsTraceTest, EncipheredTexts) {
  EXPECT_EQ(L"", m_trace.EncryptString(L""));
  EXPECT_EQ(L"", m_trace.EncryptStringAscii(L""));
  // "QWX": 'Q'^'Q', 'W'^0, 'X' ^ 'W' ^ 'W' * 2 = 0x58 ^ 0x57 ^ 0xAE = 0xA1
  EXPECT_EQ(std::wstring(L"\0W\x00A1", 3), m_trace.EncryptStringAscii(L"QWX"));
  // Two bytes a character: 'Q' and 0 meet 'Q' and 0, 'W' and 0 meet 'W' ^ 'W' * 2 and 0.
  EXPECT_EQ(std::wstring(L"\0\x00AE", 2), m_trace.EncryptString(L"QW"));
  const std::wstring text = L"C:\\R\x00E9sum\x00E9 \x20AC.doc";
  EXPECT_EQ(text, m_trace.EncryptStringAscii(m_trace.EncryptStringAscii(text)));
  const std::wstring wide = L"\x0416\U0001F600 unpaired \xDC00 and \xD83D";
  EXPECT_EQ(wide, m_trace.EncryptString(m_trace.EncryptString(wide)));
  const std::wstring before = m_trace.EncryptStringAscii(text);
  m_trace.Password(L"other");
  EXPECT_NE(before, m_trace.EncryptStringAscii(text));
  EXPECT_EQ(text, m_trace.EncryptStringAscii(m_trace.EncryptStringAscii(text)));
}

TEST_F(clsTraceTest, PasswordDigits) {
  EXPECT_EQ(L"~065066", m_trace.PasswordToHex(L"AB"));
  EXPECT_EQ(L"~128000", m_trace.PasswordToHex(std::wstring(L"\x20AC\0", 2)));
  EXPECT_EQ(L"~", m_trace.PasswordToHex(L""));
  EXPECT_EQ(L"AB", m_trace.HexToPassword(L"065066"));
  EXPECT_EQ(L"\x20AC\x7", m_trace.HexToPassword(L"1287"));
  for (const wchar_t* bad : {L"~065", L"0x5", L"256", L"-01", L"   "})
    EXPECT_THROW(m_trace.HexToPassword(bad), Error) << bad;
}

TEST_F(clsTraceTest, Properties) {
  EXPECT_EQ(L"12000", m_trace.InternetPort());
  m_trace.InternetPort(L" 80 ");
  EXPECT_EQ(L"80", m_trace.InternetPort());
  EXPECT_THROW(m_trace.InternetPort(L"http"), Error);
  EXPECT_EQ(L"80", m_trace.InternetPort());
  EXPECT_EQ(L"127.0.0.1", m_trace.InternetAddress());
  EXPECT_EQ(L"QWXKRTZPV", m_trace.Password());
}

}  // namespace
}  // namespace orvane
