#include "Listener.h"

#include <charconv>
#include <stdexcept>

namespace orvane::tool {
namespace {

constexpr int Waiting = 64;  // senders that may wait to be taken

/// The number of "127.0.0.1".
std::uint32_t AddressOf(const std::string& text) {
  std::uint32_t address = 0;
  const char* next = text.data();
  const char* const end = next + text.size();
  for (int part = 0; part < 4; ++part) {
    if (part > 0 && (next == end || *next++ != '.')) break;
    std::uint8_t byte = 0;
    const auto [behind, error] = std::from_chars(next, end, byte);
    if (error != std::errc()) break;
    next = behind;
    address = address << 8 | byte;
    if (part == 3 && next == end) return address;
  }
  throw std::runtime_error("\"" + text + "\" is no address such as 127.0.0.1");
}

}  // namespace

Listener::Listener(const std::string& address, std::uint16_t port) {
  const auto socket = m_sockets.Listen(AddressOf(address), port, Waiting);
  if (!socket)
    throw std::runtime_error("cannot listen at " + address + ", port " + std::to_string(port) +
                             (m_sockets.IsTaken() ? ": another program does" : ""));
  m_open.push_back(*socket);
}

Listener::~Listener() {
  for (const Sockets::Socket socket : m_open) Sockets::Close(socket);
}

void Listener::Wait(int milliseconds, const Sink& sink) {
  const std::vector<bool> ready = Sockets::Wait(m_open, milliseconds);
  for (std::size_t i = m_open.size(); --i > 0;) {
    if (ready[i]) Receive(i, sink);
  }
  if (!ready[0]) return;
  if (const auto sender = Sockets::Accept(m_open[0])) {
    m_open.push_back(*sender);
    m_numbers.push_back(++m_count);
  }
}

void Listener::Receive(std::size_t sender, const Sink& sink) {
  char bytes[0x4000];
  const std::size_t length = Sockets::Receive(m_open[sender], bytes);
  sink(m_numbers[sender], {bytes, length});
  if (length > 0) return;
  Sockets::Close(m_open[sender]);
  m_open.erase(m_open.begin() + static_cast<std::ptrdiff_t>(sender));
  m_numbers.erase(m_numbers.begin() + static_cast<std::ptrdiff_t>(sender));
}

}  // namespace orvane::tool
