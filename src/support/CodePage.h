#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane {

/// The one way between texts and the bytes of the contracts that are defined in bytes (definition
/// file, log records, enciphered list entries, network messages, ANSI help texts). Every byte has a
/// character of its own, so bytes survive the way there and back; a character that the page does
/// not have becomes "?".
class CodePage {
 public:
  explicit CodePage(const std::array<wchar_t, 256>& characters);

  std::wstring Decode(std::span<const std::byte> bytes) const;
  /// Into as many characters as there are bytes.
  void Decode(std::span<const std::byte> bytes, wchar_t* characters) const;
  std::vector<std::byte> Encode(std::wstring_view text) const;
  /// Whether the text comes back from its bytes as it was.
  bool Spells(std::wstring_view text) const { return Decode(Encode(text)) == text; }

 private:
  std::byte Encode(wchar_t character) const;

  std::array<wchar_t, 256> m_characters;
  std::array<std::pair<wchar_t, std::byte>, 256> m_byCharacter;  // sorted
};

}  // namespace orvane
