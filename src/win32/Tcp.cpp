#include "win32/Tcp.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "win32/Patience.h"
#include "win32/Winsock.h"

namespace orvane::win32 {
namespace {

using Sockets = std::shared_ptr<Winsock>;

class Socket {
 public:
  Socket(Sockets sockets, SOCKET handle) : m_sockets(std::move(sockets)), m_handle(handle) {}
  Socket(Socket&& other) noexcept
      : m_sockets(std::move(other.m_sockets)),
        m_handle(std::exchange(other.m_handle, INVALID_SOCKET)) {}
  Socket& operator=(Socket&&) = delete;
  ~Socket() { Close(); }

  SOCKET Get() const { return m_handle; }
  bool Open() const { return m_handle != INVALID_SOCKET; }
  void Close() {
    if (Open()) m_sockets->Close(std::exchange(m_handle, INVALID_SOCKET));
  }

 private:
  Sockets m_sockets;
  SOCKET m_handle;
};

using Address = std::optional<sockaddr_in>;

Address Resolve(const Winsock& sockets, const std::wstring& host, int flags) {
  ADDRINFOW wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = flags;
  ADDRINFOW* found = nullptr;
  if (sockets.GetAddrInfo(host.c_str(), nullptr, &wanted, &found) != 0) return std::nullopt;
  const Address address = *reinterpret_cast<const sockaddr_in*>(found->ai_addr);
  sockets.FreeAddrInfo(found);
  return address;
}

/// True when the socket takes bytes within the patience; false too when connecting has failed.
bool WaitToWrite(const Winsock& sockets, SOCKET socket) {
  fd_set writable, failed;
  FD_ZERO(&writable);
  FD_ZERO(&failed);
  // Not FD_SET: its loop compares signed with unsigned numbers.
  writable.fd_array[writable.fd_count++] = socket;
  failed.fd_array[failed.fd_count++] = socket;
  timeval patience{0, static_cast<long>(Tcp::Patience) * 1000};
  return sockets.Select(0, nullptr, &writable, &failed, &patience) > 0 && writable.fd_count == 1;
}

bool ConnectInTime(const Winsock& sockets, SOCKET socket, const sockaddr_in& address) {
  u_long nonBlocking = 1;
  if (sockets.IoControl(socket, static_cast<long>(FIONBIO), &nonBlocking) != 0) return false;
  const auto* where = reinterpret_cast<const sockaddr*>(&address);
  if (sockets.Connect(socket, where, sizeof address) == 0) return true;
  return sockets.GetLastError() == WSAEWOULDBLOCK && WaitToWrite(sockets, socket);
}

class Connection : public TcpConnection {
 public:
  Connection(Sockets sockets, Socket socket)
      : m_sockets(std::move(sockets)), m_socket(std::move(socket)) {}

  bool Send(std::span<const std::byte> bytes) override {
    while (m_socket.Open() && !bytes.empty()) {
      const int piece = static_cast<int>(std::min<std::size_t>(bytes.size(), 1 << 20));
      const auto* data = reinterpret_cast<const char*>(bytes.data());
      const int sent = m_sockets->Send(m_socket.Get(), data, piece, 0);
      if (sent > 0)
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
      else if (m_sockets->GetLastError() != WSAEWOULDBLOCK ||
               !WaitToWrite(*m_sockets, m_socket.Get()))
        m_socket.Close();
    }
    return m_socket.Open();
  }

 private:
  Sockets m_sockets;
  Socket m_socket;
};

constexpr std::uint16_t NetworkOrder(std::uint16_t number) {
  return static_cast<std::uint16_t>(number << 8 | number >> 8);
}

}  // namespace

std::unique_ptr<TcpConnection> Tcp::Connect(const std::wstring& host, std::uint16_t port) {
  if (!m_winsock) m_winsock = std::make_shared<Winsock>();
  const Sockets sockets = m_winsock;
  if (!sockets->Started()) return nullptr;
  const std::wstring name = host.empty() ? L"localhost" : host;
  Address address = Resolve(*sockets, name, AI_NUMERICHOST);
  if (!address) {
    address = AskWithPatience([name, sockets] { return Resolve(*sockets, name, 0); }, Patience,
                              Address());
  }
  if (!address) return nullptr;
  address->sin_port = NetworkOrder(port);
  Socket socket(sockets, sockets->Socket(AF_INET, SOCK_STREAM, IPPROTO_TCP, nullptr, 0,
                                         WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT));
  if (!socket.Open() || !ConnectInTime(*sockets, socket.Get(), *address)) return nullptr;
  return std::make_unique<Connection>(sockets, std::move(socket));
}

}  // namespace orvane::win32
