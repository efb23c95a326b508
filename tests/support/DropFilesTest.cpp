#include "support/DropFiles.h"

#include <gtest/gtest.h>

#include "support/Utf16.h"

namespace orvane {
namespace {

using namespace std::literals;

/// The names in a block of `list`, each followed by "|"; "none" when the block is damaged.
std::wstring Names(std::uint32_t offset, bool wide, std::span<const std::byte> list) {
  std::vector<std::byte> block(20);
  for (std::size_t i = 0; i < 4; ++i) block[i] = static_cast<std::byte>(offset >> 8 * i);
  block[16] = static_cast<std::byte>(wide);
  block.insert(block.end(), list.begin(), list.end());
  const auto names = ReadDropFiles(block, [](std::span<const std::byte> bytes) {
    std::wstring text;
    for (const std::byte byte : bytes) text += static_cast<wchar_t>(byte);
    return text;
  });
  if (!names) return L"none";
  std::wstring all;
  for (auto rest = names->All(); !rest.empty();) all += std::wstring(FileNames::Take(rest)) + L"|";
  return all;
}

TEST(DropFiles, ReadsWideAndAnsiLists) {
  const struct {
    std::uint32_t offset;
    std::wstring_view list;
    std::wstring_view names;
  } rows[] = {
      {20, L"C:\\a\0C:\\\u05d0 c\0\0"sv, L"C:\\a|C:\\\u05d0 c|"},
      {20, L"C:\\a\0\0C:\\after the end\0\0"sv, L"C:\\a|"},
      {20, L"C:\\a\0"sv, L"C:\\a|"},  // no closing zero
      {20, L"C:\\a\0C:\\no end"sv, L"none"},
      {20, L"", L""},
      {24, L"??C:\\a\0\0"sv, L"C:\\a|"},
      {19, L"C:\\a\0\0"sv, L"none"},
      {0xFFFFFFFF, L"C:\\a\0\0"sv, L"none"},
  };
  for (const auto& row : rows) {
    auto list = ToUtf16(row.list);
    EXPECT_EQ(Names(row.offset, true, list), row.names);
    list.push_back(std::byte{'x'});  // half a character
    EXPECT_EQ(Names(row.offset, true, list), row.names);
  }
  EXPECT_EQ(Names(22, false, std::as_bytes(std::span("??C:\\a\0C:\\b\0"))), L"C:\\a|C:\\b|");
  EXPECT_FALSE(ReadDropFiles(std::vector<std::byte>(19), {}));
}

}  // namespace
}  // namespace orvane
