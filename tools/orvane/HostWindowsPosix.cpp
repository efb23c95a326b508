#include <iconv.h>

#include <string>

#include "HostWindows.h"

namespace orvane::tool {
namespace {

struct CloseConverter {
  void operator()(void* converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<void, CloseConverter>;

Converter OpenConverter(int number) {
  iconv_t converter = iconv_open("UTF-32LE", ("CP" + std::to_string(number)).c_str());
  if (converter == iconv_t(-1)) return nullptr;
  return Converter(converter);
}

/// The character of a byte; 0 when the byte is none by itself.
wchar_t Convert(iconv_t converter, int byte) {
  char in = static_cast<char>(byte);
  char32_t character = 0;
  char* from = &in;
  char* to = reinterpret_cast<char*>(&character);
  std::size_t fromLeft = 1;
  std::size_t toLeft = sizeof character;
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  const bool converted = iconv(converter, &from, &fromLeft, &to, &toLeft) != std::size_t(-1);
  return converted ? static_cast<wchar_t>(character) : L'\0';
}

}  // namespace

std::unique_ptr<HostWindows> FindWindows() {
  return nullptr;
}

std::optional<std::array<wchar_t, 256>> CodePageCharacters(int number) {
  const Converter converter = OpenConverter(number);
  if (!converter) return std::nullopt;
  std::array<wchar_t, 256> characters{};
  int open = 0;
  for (int byte = 0; byte < 256; ++byte) {
    wchar_t& character = characters[static_cast<std::size_t>(byte)];
    character = Convert(converter.get(), byte);
    if (character != 0 || byte == 0) continue;
    character = static_cast<wchar_t>(byte);
    ++open;
  }
  // Beyond what single-byte pages leave open, bytes are halves of characters.
  constexpr int MostOpen = 40;
  if (characters['A'] != L'A' || open > MostOpen) return std::nullopt;
  return characters;
}

}  // namespace orvane::tool
