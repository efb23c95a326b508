#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace orvane::tool {

/// A TCP listener (IPv4) for many senders at a time, without threads.
class Listener {
 public:
  /// What came of a sender, which is numbered from 1; no bytes when it has gone.
  using Sink = std::function<void(int sender, std::string_view bytes)>;

  /// Port 0 means any free one. std::runtime_error when it cannot listen there.
  Listener(const std::string& address, std::uint16_t port);
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  std::uint16_t Port() const;

  /// Waits so long for senders and their bytes, and hands on what has come.
  void Wait(int milliseconds, const Sink& sink);

 private:
  struct Sockets;
  std::unique_ptr<Sockets> m_sockets;
};

}  // namespace orvane::tool
