#pragma once

#ifdef _WIN32
// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
// clang-format on
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <cstdint>
#include <string>

namespace orvane {

/// A listener on the local machine that reads only when it is told to.
class TestListener {
 public:
  TestListener() {
#ifdef _WIN32
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
#endif
    m_listening = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    bind(m_listening, reinterpret_cast<sockaddr*>(&address), sizeof address);
    listen(m_listening, 1);
    socklen_t size = sizeof address;
    getsockname(m_listening, reinterpret_cast<sockaddr*>(&address), &size);
    m_port = ntohs(address.sin_port);
  }
  TestListener(const TestListener&) = delete;
  TestListener& operator=(const TestListener&) = delete;
  ~TestListener() {
    Close(m_accepted);
    Close(m_listening);
#ifdef _WIN32
    WSACleanup();
#endif
  }

  std::uint16_t Port() const {
    return m_port;
  }

  void Accept() {
    m_accepted = accept(m_listening, nullptr, nullptr);
  }

  /// Waits for the next bytes; empty when the other side has closed.
  std::string Read() {
    char bytes[4096];
    const auto read = recv(m_accepted, bytes, sizeof bytes, 0);
    return {bytes, read > 0 ? static_cast<std::size_t>(read) : 0};
  }

  void HangUp() {
    Close(m_accepted);
  }
  void StopListening() {
    Close(m_listening);
  }

 private:
#ifdef _WIN32
  using Socket = SOCKET;
  static void CloseSocket(Socket socket) {
    closesocket(socket);
  }
#else
  using Socket = int;
  static void CloseSocket(Socket socket) {
    close(socket);
  }
#endif
  static constexpr Socket None = static_cast<Socket>(-1);

  static void Close(Socket& socket) {
    if (socket != None) CloseSocket(socket);
    socket = None;
  }

  Socket m_listening = None;
  Socket m_accepted = None;
  std::uint16_t m_port = 0;
};

}  // namespace orvane
