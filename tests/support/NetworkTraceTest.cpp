#ifndef _WIN32

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>

#include "platform/memory/Desktop.h"
#include "platform/memory/Windows1252.h"
#include "support/clsTrace.h"

namespace orvane {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// A listener on the loopback address, with a short queue and small buffers.
class Listener {
 public:
  Listener() : m_socket(::socket(AF_INET, SOCK_STREAM, 0)) {
    const int small = 4096;
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(0, ::bind(m_socket, any, size));
    EXPECT_EQ(0, ::listen(m_socket, 4));
    EXPECT_EQ(0, ::getsockname(m_socket, any, &size));
    m_port = ntohs(address.sin_port);
  }
  ~Listener() {
    HangUp();
    Close();
  }

  std::wstring Port() const { return std::to_wstring(m_port); }
  void Accept() { m_peer = ::accept(m_socket, nullptr, nullptr); }
  void Close() {
    if (m_socket >= 0) ::close(m_socket);
    m_socket = -1;
  }
  void HangUp() {
    if (m_peer >= 0) ::close(m_peer);
    m_peer = -1;
  }

  /// The next message; empty at the end of the connection.
  std::string Read() {
    unsigned char head[2];
    if (::recv(m_peer, head, 2, MSG_WAITALL) != 2) return {};
    std::string text(head[0] + 256u * head[1], '\0');
    const auto got = ::recv(m_peer, text.data(), text.size(), MSG_WAITALL);
    EXPECT_EQ(static_cast<ssize_t>(text.size()), got);
    return text;
  }

 private:
  int m_socket;
  int m_peer = -1;
  std::uint16_t m_port = 0;
};

class NetworkTraceTest : public testing::Test {
 protected:
  NetworkTraceTest() { m_desktop.files.AddFolder(L"C:\\Logs"); }

  std::string Log() { return m_desktop.files.Content(L"C:\\Logs\\x").value_or("(none)"); }

  template <class Call>
  static milliseconds Time(Call call) {
    const auto start = steady_clock::now();
    call();
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
  }

  memory::Desktop m_desktop;
  CodePage m_page{memory::Windows1252()};
  Listener m_listener;
  clsTrace m_trace{m_desktop.files,  m_desktop.boxes, m_desktop.clock,
                   m_desktop.locale, m_desktop.tcp,   m_page};
};

TEST_F(NetworkTraceTest, GreetingAndRawLines) {
  m_trace.InternetPort(m_listener.Port());
  m_trace.Initialize(L"C:\\Logs\\x", clsTrace::FlagInternet);
  m_listener.Accept();
  m_trace.Push(L"A");
  m_trace.Output(L"\x20AC\x0416", 0);
  m_trace.Pop(false);
  m_trace.Output(std::wstring(70'000, L'x'), 16);
  EXPECT_EQ("0 0 Orvane - Orvane Shell Extension", m_listener.Read());
  EXPECT_EQ("1 4 A", m_listener.Read());
  EXPECT_EQ("1 0 \x80?", m_listener.Read());
  EXPECT_EQ("1 8 ", m_listener.Read());
  EXPECT_EQ("1 16 " + std::string(65'530, 'x'), m_listener.Read());
  EXPECT_EQ("(none)", Log());  // no file without FlagAutoCommit

  // Terminating ends the lines, not the connection.
  m_trace.Terminate();
  m_trace.Output(L"no", 0);
  m_trace.Initialize(L"C:\\Logs\\x", 0);
  m_trace.Output(L"file only", 0);
  m_trace.Initialize(L"", clsTrace::FlagInternet);
  EXPECT_EQ("", m_listener.Read());
  m_listener.HangUp();
  m_listener.Accept();
  EXPECT_EQ("0 0 Orvane - Orvane Shell Extension", m_listener.Read());
}

TEST_F(NetworkTraceTest, NobodyListens) {
  const std::wstring port = m_listener.Port();
  m_listener.Close();
  for (const std::wstring& nowhere :
       {port, std::wstring(L"0"), std::wstring(L"70000"), std::wstring(L"-1")}) {
    m_trace.InternetPort(nowhere);
    EXPECT_LT(Time([&] {
                m_trace.Initialize(L"C:\\Logs\\x", clsTrace::FlagInternet |
                                                       clsTrace::FlagAutoCommit |
                                                       clsTrace::FlagReset);
                m_trace.Output(L"x", clsTrace::FlagNoTime);
              }),
              milliseconds(3000));
    EXPECT_EQ("    x\r\n", Log());
  }
  EXPECT_TRUE(m_desktop.effects.All().empty() ||
              m_desktop.effects.All().back().call != "MessageBox");
}

TEST_F(NetworkTraceTest, ListenerStopsReading) {
  m_trace.InternetPort(m_listener.Port());
  m_trace.Initialize(L"", clsTrace::FlagInternet);
  m_listener.Accept();
  // One wait of 250 ms for the whole log, not one for each line.
  const std::wstring line(60'000, L'x');
  EXPECT_LT(Time([&] {
              for (int i = 0; i < 1000; ++i) m_trace.Output(line, 0);
            }),
            milliseconds(10'000));
}

}  // namespace
}  // namespace orvane

#endif
