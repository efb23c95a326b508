#include "platform/TestListener.h"
// Its winsock2.h must come before windows.h.
#include "RunTool.h"

namespace orvane::tool {
namespace {

/// Waits as long as it takes, which the log itself does not: a busy machine lets its listener wait.
class Sender {
 public:
  explicit Sender(std::uint16_t port) : m_socket(socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(connect(m_socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }
  ~Sender() {
#ifdef _WIN32
    closesocket(m_socket);
#else
    close(m_socket);
#endif
  }
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;

  void Send(std::string_view bytes) const {
    while (!bytes.empty()) {
      const auto sent = send(m_socket, bytes.data(), static_cast<int>(bytes.size()), 0);
      ASSERT_GT(sent, 0);
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
  }

 private:
  decltype(socket(0, 0, 0)) m_socket;
};

/// As it goes over the network.
std::string Message(const std::string& text) {
  return std::string{static_cast<char>(text.size()), static_cast<char>(text.size() >> 8)} + text;
}

class Listen : public ToolTest {
 protected:
  Listen() {
    const std::string said = m_tool.WaitFor("; Ctrl+C");
    m_port = static_cast<std::uint16_t>(std::stoi(said.substr(said.find("port ") + 5)));
  }

  TestListener m_sockets;  // which it keeps usable
  RunningTool m_tool{{"log", "listen", "--port", "0"}};
  std::uint16_t m_port = 0;
};

TEST_F(Listen, TakesManySendersAndWhateverTheySend) {
  std::vector<std::unique_ptr<Sender>> senders;
  for (int i = 0; i < 40; ++i) {
    senders.push_back(std::make_unique<Sender>(m_port));
    senders.back()->Send(Message("0 0 Orvane") + Message("1 4 Outer"));
  }
  for (std::size_t i = 40; i-- > 0;) senders[i]->Send(Message("1 0 x=" + std::to_string(i)));
  m_tool.WaitFor("40       x=39\n");
  m_tool.WaitFor("1       x=0\n");
  senders[0]->Send(Message("hello") + Message("1 16 caf\xE9 \x1B[2J") + Message(""));
  m_tool.WaitFor("1       (no message of a log) hello\n");
  m_tool.WaitFor("caf\u00e9 \\x1B[2J\n");
  senders[1]->Send(Message("1 0 " + std::string(65531, 'y')));
  m_tool.WaitFor("yyyy\n");
  senders[2]->Send("\xFF\xFFhalf");
  senders.clear();
  m_tool.WaitFor("sender 3 left within a message, after 6 bytes of it\n");
  ExpectRefusal({"log", "listen", "--port", std::to_string(m_port)}, "another program does");
  ExpectRefusal({"log", "listen", "--address", "localhost"}, "is no address such as 127.0.0.1");
  EXPECT_EQ(m_tool.End().status, 0);
}

TEST_F(Listen, KeepsUpWithAMillionLines) {
  const Sender sender(m_port);
  std::string thousand;
  for (int i = 0; i < 1000; ++i) thousand += Message("1 0 x");
  for (int i = 0; i < 1000; ++i) sender.Send(thousand);
  sender.Send(Message("1 0 the last one"));
  EXPECT_EQ(std::ranges::count(m_tool.WaitFor("the last one\n"), '\n'), 1'000'002);
}

}  // namespace
}  // namespace orvane::tool
