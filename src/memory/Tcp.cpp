#include "memory/Tcp.h"

#ifndef _WIN32
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "support/Utf8.h"
#endif

namespace orvane::memory {

#ifdef _WIN32

std::unique_ptr<TcpConnection> Tcp::Connect(const std::wstring&, std::uint16_t) {
  m_faults.Hit();
  return nullptr;
}

#else

namespace {

class Socket {
 public:
  explicit Socket(int handle) : m_handle(handle) {}
  Socket(Socket&& other) noexcept : m_handle(std::exchange(other.m_handle, -1)) {}
  Socket& operator=(Socket&&) = delete;
  ~Socket() { Close(); }

  int Get() const { return m_handle; }
  void Close() {
    if (m_handle >= 0) ::close(std::exchange(m_handle, -1));
  }

 private:
  int m_handle;
};

/// True when the socket takes bytes (or has failed) within the patience.
bool WaitToWrite(int socket) {
  pollfd waiting{socket, POLLOUT, 0};
  int ready = 0;
  do {
    ready = ::poll(&waiting, 1, static_cast<int>(Tcp::Patience));
  } while (ready < 0 && errno == EINTR);
  return ready > 0;
}

bool ConnectInTime(int socket, const addrinfo& address) {
  if (::connect(socket, address.ai_addr, address.ai_addrlen) == 0) return true;
  if (errno != EINPROGRESS || !WaitToWrite(socket)) return false;
  int error = 0;
  socklen_t size = sizeof error;
  return ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

class Connection : public TcpConnection {
 public:
  Connection(Socket socket, Faults& faults) : m_socket(std::move(socket)), m_faults(faults) {}

  bool Send(std::span<const std::byte> bytes) override {
    if (m_faults.Hit()) m_socket.Close();
    while (m_socket.Get() >= 0 && !bytes.empty()) {
      const auto sent = ::send(m_socket.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (sent > 0) {
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
      } else if (errno != EINTR &&
                 ((errno != EAGAIN && errno != EWOULDBLOCK) || !WaitToWrite(m_socket.Get()))) {
        m_socket.Close();
      }
    }
    return m_socket.Get() >= 0;
  }

 private:
  Socket m_socket;
  Faults& m_faults;
};

}  // namespace

std::unique_ptr<TcpConnection> Tcp::Connect(const std::wstring& host, std::uint16_t port) {
  if (m_faults.Hit()) return nullptr;
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  const std::string name = host.empty() ? "localhost" : ToUtf8(host);
  if (::getaddrinfo(name.c_str(), std::to_string(port).c_str(), &wanted, &found) != 0) {
    return nullptr;
  }
  const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> address(found, &::freeaddrinfo);
  Socket socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  if (socket.Get() < 0 || !ConnectInTime(socket.Get(), *address)) return nullptr;
  return std::make_unique<Connection>(std::move(socket), m_faults);
}

#endif

}  // namespace orvane::memory
