#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace orvane {

/// A TCP connection to a listener; closed with the object.
class TcpConnection {
 public:
  virtual ~TcpConnection() = default;

  /// False when the listener is gone or has taken nothing for 250 ms; the connection is then given
  /// up, and every later call answers false at once.
  virtual bool Send(std::span<const std::byte> bytes) = 0;
};

class Tcp {
 public:
  static constexpr std::uint32_t Patience = 250;  // milliseconds, for connecting and for sending

  virtual ~Tcp() = default;

  /// Connects over IPv4, to a dotted address or else a host name; empty means "localhost". Null
  /// when nobody answers within the patience.
  virtual std::unique_ptr<TcpConnection> Connect(const std::wstring& host, std::uint16_t port) = 0;
};

}  // namespace orvane
