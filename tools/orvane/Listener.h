#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Sockets.h"

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

  std::uint16_t Port() const { return Sockets::Port(m_open.front()); }

  /// Waits so long for senders and their bytes, and hands on what has come.
  void Wait(int milliseconds, const Sink& sink);

 private:
  void Receive(std::size_t sender, const Sink& sink);

  Sockets m_sockets;
  std::vector<Sockets::Socket> m_open;  // the listening one, and the senders'
  std::vector<int> m_numbers = {0};     // of the senders, beside m_open
  int m_count = 0;
};

}  // namespace orvane::tool
