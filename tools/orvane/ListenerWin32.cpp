// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
// clang-format on

#include <stdexcept>
#include <vector>

#include "Listener.h"

namespace orvane::tool {
namespace {

constexpr int Waiting = 64;  // senders that may wait to be taken

sockaddr_in AddressOf(const std::string& address, std::uint16_t port) {
  sockaddr_in result{};
  result.sin_family = AF_INET;
  result.sin_port = htons(port);
  if (inet_pton(AF_INET, address.c_str(), &result.sin_addr) != 1)
    throw std::runtime_error("\"" + address + "\" is no address such as 127.0.0.1");
  return result;
}

}  // namespace

struct Listener::Sockets {
  using Socket = SOCKET;
  static constexpr Socket None = INVALID_SOCKET;

  Sockets() {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
  }

  static void Close(Socket socket) { closesocket(socket); }
  static int Poll(std::vector<pollfd>& waiting, int milliseconds) {
    return WSAPoll(waiting.data(), static_cast<ULONG>(waiting.size()), milliseconds);
  }
  /// One program at a port.
  static void Own(Socket socket) {
    const BOOL yes = TRUE;
    setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&yes),
               sizeof yes);
  }
  static bool IsRefused() {
    const int error = WSAGetLastError();
    return error == WSAEADDRINUSE || error == WSAEACCES;
  }

  struct Sender {
    Socket socket;
    int number;
  };

  ~Sockets() {
    for (const Sender& sender : senders) Close(sender.socket);
    if (listening != None) Close(listening);
    WSACleanup();
  }

  void Accept() {
    const Socket socket = accept(listening, nullptr, nullptr);
    if (socket != None) senders.push_back({socket, ++count});
  }

  /// False when the sender has gone.
  static bool Receive(const Sender& sender, const Sink& sink) {
    char bytes[0x4000];
    const auto length = recv(sender.socket, bytes, sizeof bytes, 0);
    sink(sender.number, {bytes, length > 0 ? static_cast<std::size_t>(length) : 0});
    if (length <= 0) Close(sender.socket);
    return length > 0;
  }

  Socket listening = None;
  std::vector<Sender> senders;
  int count = 0;
};

Listener::Listener(const std::string& address, std::uint16_t port)
    : m_sockets(std::make_unique<Sockets>()) {
  const sockaddr_in place = AddressOf(address, port);
  m_sockets->listening = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  Sockets::Own(m_sockets->listening);
  const auto* bare = reinterpret_cast<const sockaddr*>(&place);
  if (bind(m_sockets->listening, bare, sizeof place) == 0 &&
      listen(m_sockets->listening, Waiting) == 0)
    return;
  throw std::runtime_error("cannot listen at " + address + ", port " + std::to_string(port) +
                           (Sockets::IsRefused() ? ": another program does" : ""));
}

Listener::~Listener() = default;

std::uint16_t Listener::Port() const {
  sockaddr_in place{};
  socklen_t size = sizeof place;
  getsockname(m_sockets->listening, reinterpret_cast<sockaddr*>(&place), &size);
  return ntohs(place.sin_port);
}

void Listener::Wait(int milliseconds, const Sink& sink) {
  std::vector<pollfd> waiting = {{m_sockets->listening, POLLIN, 0}};
  for (const auto& sender : m_sockets->senders) waiting.push_back({sender.socket, POLLIN, 0});
  if (Sockets::Poll(waiting, milliseconds) <= 0) return;
  std::vector<Sockets::Sender> staying;
  for (std::size_t i = 0; i < m_sockets->senders.size(); ++i) {
    const auto sender = m_sockets->senders[i];
    if (waiting[i + 1].revents == 0 || Sockets::Receive(sender, sink)) staying.push_back(sender);
  }
  m_sockets->senders = std::move(staying);
  if (waiting[0].revents != 0) m_sockets->Accept();
}

}  // namespace orvane::tool
