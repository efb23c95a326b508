#include "support/CodePage.h"

#include <algorithm>

namespace orvane {

CodePage::CodePage(const std::array<wchar_t, 256>& characters) : m_characters(characters) {
  for (std::size_t i = 0; i < characters.size(); ++i)
    m_byCharacter[i] = {characters[i], static_cast<std::byte>(i)};
  std::ranges::sort(m_byCharacter);
}

std::wstring CodePage::Decode(std::span<const std::byte> bytes) const {
  std::wstring text(bytes.size(), L'\0');
  Decode(bytes, text.data());
  return text;
}

void CodePage::Decode(std::span<const std::byte> bytes, wchar_t* characters) const {
  std::ranges::transform(bytes, characters, [this](std::byte byte) {
    return m_characters[std::to_integer<std::size_t>(byte)];
  });
}

std::vector<std::byte> CodePage::Encode(std::wstring_view text) const {
  std::vector<std::byte> bytes(text.size());
  std::ranges::transform(text, bytes.begin(),
                         [this](wchar_t character) { return Encode(character); });
  return bytes;
}

std::byte CodePage::Encode(wchar_t character) const {
  const auto code = static_cast<std::uint32_t>(character);
  if (code < 128 && m_characters[code] == character) return static_cast<std::byte>(code);
  const auto* found =
      std::ranges::lower_bound(m_byCharacter, character, {}, &std::pair<wchar_t, std::byte>::first);
  if (found == m_byCharacter.end() || found->first != character) return std::byte{'?'};
  return found->second;
}

}  // namespace orvane
