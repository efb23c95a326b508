#include "support/DropFiles.h"

#include <cstdint>

#include "support/Utf16.h"

namespace orvane {
namespace {

constexpr std::size_t HeadSize = 20;    // sizeof(DROPFILES)
constexpr std::size_t ListOffset = 0;   // DROPFILES::pFiles
constexpr std::size_t WideOffset = 16;  // DROPFILES::fWide

std::uint32_t NumberAt(std::span<const std::byte> block, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) {
    number = number << 8 | std::to_integer<std::uint32_t>(block[at + i]);
  }
  return number;
}

}  // namespace

std::optional<FileNames> ReadDropFiles(
    std::span<const std::byte> block,
    const std::function<std::wstring(std::span<const std::byte>)>& decodeAnsi) {
  if (block.size() < HeadSize) return std::nullopt;
  const std::size_t offset = NumberAt(block, ListOffset);
  if (offset < HeadSize || offset > block.size()) return std::nullopt;
  const auto list = block.subspan(offset);
  const std::wstring text = NumberAt(block, WideOffset) != 0 ? FromUtf16(list) : decodeAnsi(list);

  FileNames names;
  for (std::size_t at = 0; at < text.size() && text[at] != L'\0';) {
    const std::size_t end = text.find(L'\0', at);
    if (end == std::wstring::npos) return std::nullopt;
    names.Add(std::wstring_view(text).substr(at, end - at));
    at = end + 1;
  }
  return names;
}

}  // namespace orvane
