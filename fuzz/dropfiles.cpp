// The selection comes from whatever program started the drag: any block must be read or refused,
// and the names taken must be within it.

#include <cstdint>
#include <cstdlib>

#include "support/DropFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
  const auto names = orvane::ReadDropFiles(bytes, [](std::span<const std::byte> ansi) {
    std::wstring text;
    for (const std::byte byte : ansi) text += static_cast<wchar_t>(byte);
    return text;
  });
  if (!names) return 0;
  std::size_t count = 0;
  std::size_t characters = 0;
  for (auto rest = names->All(); !rest.empty(); ++count) {
    const std::size_t length = orvane::FileNames::Take(rest).size();
    if (length == 0) std::abort();
    characters += length + 1;
  }
  if (count != names->Count() || characters > size) std::abort();
  return 0;
}
