#pragma once

#include "platform/Tcp.h"

namespace orvane::win32 {

class Winsock;

/// Winsock is started with the first connection and let go with the last owner.
class Tcp : public orvane::Tcp {
 public:
  std::unique_ptr<TcpConnection> Connect(const std::wstring& host, std::uint16_t port) override;

 private:
  std::shared_ptr<Winsock> m_winsock;
};

}  // namespace orvane::win32
