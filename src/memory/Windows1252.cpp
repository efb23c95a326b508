#include "memory/Windows1252.h"

namespace orvane::memory {

namespace {

// Where the page differs from the first 256 characters: bytes 0x80 to 0x9F.
constexpr wchar_t Upper[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<wchar_t, 256> MakePage() {
  std::array<wchar_t, 256> page{};
  for (std::size_t byte = 0; byte < page.size(); ++byte) {
    page[byte] = byte >= 0x80 && byte < 0xA0 ? Upper[byte - 0x80] : static_cast<wchar_t>(byte);
  }
  return page;
}

constexpr std::array<wchar_t, 256> Page = MakePage();

}  // namespace

const std::array<wchar_t, 256>& Windows1252() {
  return Page;
}

std::wstring DecodeAnsi(std::span<const std::byte> bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (const std::byte byte : bytes) text.push_back(Page[std::to_integer<std::size_t>(byte)]);
  return text;
}

}  // namespace orvane::memory
