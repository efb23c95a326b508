#pragma once

#include "memory/Faults.h"
#include "platform/Tcp.h"

namespace orvane::memory {

/// Real sockets, where the program is not a Windows one; there nobody ever answers. Looking a host
/// name up takes as long as it takes: use addresses or "localhost".
class Tcp : public orvane::Tcp {
 public:
  explicit Tcp(Faults& faults) : m_faults(faults) {}

  std::unique_ptr<TcpConnection> Connect(const std::wstring& host, std::uint16_t port) override;

 private:
  Faults& m_faults;
};

}  // namespace orvane::memory
