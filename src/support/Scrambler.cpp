#include "support/Scrambler.h"

#include <algorithm>

#include "support/Utf16.h"

namespace orvane {

Scrambler::Scrambler(std::wstring_view password) {
  for (std::byte byte : ToUtf16(password)) m_key.push_back(std::to_integer<std::uint8_t>(byte));
}

void Scrambler::Scramble(std::span<std::byte> bytes) {
  Extend(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] ^= static_cast<std::byte>(m_stream[i]);
}

std::wstring Scrambler::Scramble(std::wstring_view text, const CodePage& codePage) {
  std::vector<std::byte> bytes = codePage.Encode(text);
  Scramble(bytes);
  return codePage.Decode(bytes);
}

void Scrambler::Extend(std::size_t size) {
  if (size <= m_stream.size()) return;
  if (m_key.empty()) {
    m_stream.resize(size);  // no password, no scrambling
    return;
  }
  m_stream.reserve(std::max(size, 2 * m_stream.size()));
  while (m_stream.size() < size) {
    const unsigned k = m_key[m_index];
    m_stream.push_back(static_cast<std::uint8_t>(k ^ ((k * m_index) & 255)));
    if (m_index + 1 >= m_key.size()) {
      // The walk starts again at the second byte.
      m_key[m_index] = static_cast<std::uint8_t>(m_key[1] + k);
      m_index = 1;
    } else {
      m_key[m_index] = static_cast<std::uint8_t>(k + m_key[m_index + 1]);
      ++m_index;
    }
  }
}

}  // namespace orvane
