#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "Sockets.h"

namespace orvane::tool {
namespace {

int Native(Sockets::Socket socket) {
  return static_cast<int>(socket);
}

std::optional<Sockets::Socket> Wrapped(int socket) {
  if (socket < 0) return std::nullopt;
  return static_cast<Sockets::Socket>(socket);
}

}  // namespace

Sockets::Sockets() = default;
Sockets::~Sockets() = default;

std::optional<Sockets::Socket> Sockets::Listen(std::uint32_t address, std::uint16_t port,
                                               int waiting) {
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_port = htons(port);
  place.sin_addr.s_addr = htonl(address);
  const int socket = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  const int yes = 1;  // also right after another program has left the port
  ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  if (::bind(socket, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
      ::listen(socket, waiting) == 0)
    return Wrapped(socket);
  m_isTaken = errno == EADDRINUSE;
  if (socket >= 0) ::close(socket);
  return std::nullopt;
}

std::uint16_t Sockets::Port(Socket socket) {
  sockaddr_in place{};
  socklen_t size = sizeof place;
  ::getsockname(Native(socket), reinterpret_cast<sockaddr*>(&place), &size);
  return ntohs(place.sin_port);
}

std::optional<Sockets::Socket> Sockets::Accept(Socket socket) {
  return Wrapped(::accept(Native(socket), nullptr, nullptr));
}

std::size_t Sockets::Receive(Socket socket, std::span<char> bytes) {
  const auto length = ::recv(Native(socket), bytes.data(), bytes.size(), 0);
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

std::vector<bool> Sockets::Wait(std::span<const Socket> sockets, int milliseconds) {
  std::vector<pollfd> waiting;
  for (const Socket socket : sockets) waiting.push_back({Native(socket), POLLIN, 0});
  if (::poll(waiting.data(), waiting.size(), milliseconds) < 0) waiting.clear();
  std::vector<bool> ready(sockets.size());
  for (std::size_t i = 0; i < waiting.size(); ++i) ready[i] = waiting[i].revents != 0;
  return ready;
}

void Sockets::Close(Socket socket) {
  ::close(Native(socket));
}

}  // namespace orvane::tool
