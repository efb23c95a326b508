#include <winsock2.h>

#include "Sockets.h"

namespace orvane::tool {
namespace {

std::optional<Sockets::Socket> Wrapped(SOCKET socket) {
  if (socket == INVALID_SOCKET) return std::nullopt;
  return socket;
}

}  // namespace

Sockets::Sockets() {
  WSADATA data;
  WSAStartup(MAKEWORD(2, 2), &data);
}

Sockets::~Sockets() {
  WSACleanup();
}

std::optional<Sockets::Socket> Sockets::Listen(std::uint32_t address, std::uint16_t port,
                                               int waiting) {
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_port = htons(port);
  place.sin_addr.s_addr = htonl(address);
  const SOCKET socket = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
  const BOOL yes = TRUE;
  ::setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&yes),
               sizeof yes);
  if (::bind(socket, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
      ::listen(socket, waiting) == 0)
    return Wrapped(socket);
  const int error = WSAGetLastError();
  m_isTaken = error == WSAEADDRINUSE || error == WSAEACCES;
  if (socket != INVALID_SOCKET) ::closesocket(socket);
  return std::nullopt;
}

std::uint16_t Sockets::Port(Socket socket) {
  sockaddr_in place{};
  int size = sizeof place;
  ::getsockname(socket, reinterpret_cast<sockaddr*>(&place), &size);
  return ntohs(place.sin_port);
}

std::optional<Sockets::Socket> Sockets::Accept(Socket socket) {
  return Wrapped(::accept(socket, nullptr, nullptr));
}

std::size_t Sockets::Receive(Socket socket, std::span<char> bytes) {
  const int length = ::recv(socket, bytes.data(), static_cast<int>(bytes.size()), 0);
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

std::vector<bool> Sockets::Wait(std::span<const Socket> sockets, int milliseconds) {
  std::vector<WSAPOLLFD> waiting;
  for (const Socket socket : sockets) waiting.push_back({socket, POLLIN, 0});
  if (WSAPoll(waiting.data(), static_cast<ULONG>(waiting.size()), milliseconds) < 0)
    waiting.clear();
  std::vector<bool> ready(sockets.size());
  for (std::size_t i = 0; i < waiting.size(); ++i) ready[i] = waiting[i].revents != 0;
  return ready;
}

void Sockets::Close(Socket socket) {
  ::closesocket(socket);
}

}  // namespace orvane::tool
