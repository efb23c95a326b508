// clang-format off
#include <winsock2.h>
#include <ws2tcpip.h>
// clang-format on

#include "win32/Tcp.h"

#include <optional>
#include <utility>

#include "win32/Patience.h"

namespace orvane::win32 {

/// Keeps Winsock loaded for this process.
class Winsock {
 public:
  Winsock() {
    WSADATA data;
    m_started = WSAStartup(MAKEWORD(2, 2), &data) == 0;
  }
  ~Winsock() {
    if (m_started) WSACleanup();
  }
  Winsock(const Winsock&) = delete;
  Winsock& operator=(const Winsock&) = delete;

  bool Started() const { return m_started; }

 private:
  bool m_started;
};

namespace {

class Socket {
 public:
  explicit Socket(SOCKET handle) : m_handle(handle) {}
  Socket(Socket&& other) noexcept : m_handle(std::exchange(other.m_handle, INVALID_SOCKET)) {}
  Socket& operator=(Socket&&) = delete;
  ~Socket() { Close(); }

  SOCKET Get() const { return m_handle; }
  bool Open() const { return m_handle != INVALID_SOCKET; }
  void Close() {
    if (Open()) closesocket(std::exchange(m_handle, INVALID_SOCKET));
  }

 private:
  SOCKET m_handle;
};

using Address = std::optional<sockaddr_in>;

Address Resolve(const std::wstring& host, int flags) {
  ADDRINFOW wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = flags;
  ADDRINFOW* found = nullptr;
  if (GetAddrInfoW(host.c_str(), nullptr, &wanted, &found) != 0) return std::nullopt;
  const Address address = *reinterpret_cast<const sockaddr_in*>(found->ai_addr);
  FreeAddrInfoW(found);
  return address;
}

/// True when the socket takes bytes within the patience; false too when connecting has failed.
bool WaitToWrite(SOCKET socket) {
  fd_set writable, failed;
  FD_ZERO(&writable);
  FD_ZERO(&failed);
  // Not FD_SET: its loop compares signed with unsigned numbers.
  writable.fd_array[writable.fd_count++] = socket;
  failed.fd_array[failed.fd_count++] = socket;
  timeval patience{0, static_cast<long>(Tcp::Patience) * 1000};
  return select(0, nullptr, &writable, &failed, &patience) > 0 && writable.fd_count == 1;
}

bool ConnectInTime(SOCKET socket, const sockaddr_in& address) {
  u_long nonBlocking = 1;
  if (ioctlsocket(socket, static_cast<long>(FIONBIO), &nonBlocking) != 0) return false;
  const auto* where = reinterpret_cast<const sockaddr*>(&address);
  if (connect(socket, where, sizeof address) == 0) return true;
  return WSAGetLastError() == WSAEWOULDBLOCK && WaitToWrite(socket);
}

class Connection : public TcpConnection {
 public:
  Connection(std::shared_ptr<Winsock> winsock, Socket socket)
      : m_winsock(std::move(winsock)), m_socket(std::move(socket)) {}

  bool Send(std::span<const std::byte> bytes) override {
    while (m_socket.Open() && !bytes.empty()) {
      const int piece = static_cast<int>(std::min<std::size_t>(bytes.size(), 1 << 20));
      const int sent = send(m_socket.Get(), reinterpret_cast<const char*>(bytes.data()), piece, 0);
      if (sent > 0) {
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
      } else if (WSAGetLastError() != WSAEWOULDBLOCK || !WaitToWrite(m_socket.Get())) {
        m_socket.Close();
      }
    }
    return m_socket.Open();
  }

 private:
  std::shared_ptr<Winsock> m_winsock;
  Socket m_socket;
};

}  // namespace

std::unique_ptr<TcpConnection> Tcp::Connect(const std::wstring& host, std::uint16_t port) {
  if (!m_winsock) m_winsock = std::make_shared<Winsock>();
  if (!m_winsock->Started()) return nullptr;
  const std::wstring name = host.empty() ? L"localhost" : host;
  Address address = Resolve(name, AI_NUMERICHOST);
  if (!address) {
    address = AskWithPatience([name, winsock = m_winsock] { return Resolve(name, 0); }, Patience,
                              Address());
  }
  if (!address) return nullptr;
  address->sin_port = htons(port);
  Socket socket(WSASocketW(AF_INET, SOCK_STREAM, IPPROTO_TCP, nullptr, 0,
                           WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT));
  if (!socket.Open() || !ConnectInTime(socket.Get(), *address)) return nullptr;
  return std::make_unique<Connection>(m_winsock, std::move(socket));
}

}  // namespace orvane::win32
