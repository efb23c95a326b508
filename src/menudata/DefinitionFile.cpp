#include "menudata/DefinitionFile.h"

namespace orvane {

std::span<std::byte> DefinitionFile::Next() {
  if (m_position == m_bytes.size()) return {};
  const std::uint16_t tag = Number();
  const std::size_t length = Number();
  if (tag != TextTag || length > m_bytes.size() - m_position) throw CorruptFile();
  const auto value = std::span(m_bytes).subspan(m_position, length);
  m_position += length;
  return value;
}

std::uint16_t DefinitionFile::Number() {
  if (m_bytes.size() - m_position < 2) throw CorruptFile();
  const auto low = std::to_integer<std::uint16_t>(m_bytes[m_position]);
  const auto high = std::to_integer<std::uint16_t>(m_bytes[m_position + 1]);
  m_position += 2;
  return static_cast<std::uint16_t>(low | (high << 8));
}

}  // namespace orvane
