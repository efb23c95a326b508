#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvane::tool {

/// The sockets of this system (TCP, IPv4); usable while an object of the class lives. Sockets are
/// plain numbers: who has one closes it.
class Sockets {
 public:
  using Socket = std::uintptr_t;

  Sockets();
  ~Sockets();  // NOLINT(performance-trivially-destructible): on Windows it has work to do
  Sockets(const Sockets&) = delete;
  Sockets& operator=(const Sockets&) = delete;

  /// A socket for one program alone, bound to the address (host byte order) and a port, 0 for any
  /// free one, with room for so many callers that wait. None when that cannot be done.
  std::optional<Socket> Listen(std::uint32_t address, std::uint16_t port, int waiting);
  /// Whether the last Listen failed since another program has the port.
  bool IsTaken() const { return m_isTaken; }

  static std::uint16_t Port(Socket socket);
  /// The next caller; none when it has gone again.
  static std::optional<Socket> Accept(Socket socket);
  /// What has come, as many bytes as there is room for; 0 when the other side has gone.
  static std::size_t Receive(Socket socket, std::span<char> bytes);
  /// Waits until one of them has something to accept or receive. For each whether it has.
  static std::vector<bool> Wait(std::span<const Socket> sockets, int milliseconds);
  static void Close(Socket socket);

 private:
  bool m_isTaken = false;
};

}  // namespace orvane::tool
