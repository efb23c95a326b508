#include "support/DropFiles.h"

#include <gtest/gtest.h>

#include "support/Utf16.h"

namespace orvane {
namespace {

std::wstring DecodeAnsi(std::span<const std::byte> bytes) {
  std::wstring text;
  for (const std::byte byte : bytes) text += static_cast<wchar_t>(byte);
  return text;
}

std::vector<std::byte> Block(std::uint32_t offset, bool wide, std::wstring_view text) {
  std::vector<std::byte> block(20);
  for (std::size_t i = 0; i < 4; ++i) block[i] = static_cast<std::byte>(offset >> 8 * i);
  block[16] = static_cast<std::byte>(wide);
  if (wide) {
    const auto bytes = ToUtf16(text);
    block.insert(block.end(), bytes.begin(), bytes.end());
  } else {
    for (const wchar_t c : text) block.push_back(static_cast<std::byte>(c));
  }
  return block;
}

/// The names, each followed by "|"; "none" for a damaged block.
std::wstring Names(const std::vector<std::byte>& block) {
  const auto names = ReadDropFiles(block, DecodeAnsi);
  if (!names) return L"none";
  std::wstring all;
  for (auto rest = names->All(); !rest.empty();) {
    all += std::wstring(FileNames::Take(rest)) + L"|";
  }
  return all;
}

TEST(DropFiles, ReadsWideAndAnsiLists) {
  using namespace std::literals;
  struct Row {
    std::uint32_t offset;
    std::wstring_view text;
    std::wstring_view names;
  };
  for (const Row& row : {
           Row{20, L"C:\\a\0C:\\b c\0\0"sv, L"C:\\a|C:\\b c|"sv},
           Row{20, L"C:\\a\0\0C:\\after the end\0\0"sv, L"C:\\a|"sv},
           Row{20, L"C:\\a\0"sv, L"C:\\a|"sv},  // no closing zero
           Row{20, L"C:\\a\0C:\\no end"sv, L"none"sv},
           Row{20, L"C:\\no end"sv, L"none"sv},
           Row{20, L"\0"sv, L""sv},
           Row{20, L""sv, L""sv},
           Row{24, L"????C:\\a\0\0"sv, L"C:\\a|"sv},
           Row{19, L"C:\\a\0\0"sv, L"none"sv},
           Row{0, L"C:\\a\0\0"sv, L"none"sv},
           Row{1000, L"C:\\a\0\0"sv, L"none"sv},
           Row{0xFFFFFFFF, L"C:\\a\0\0"sv, L"none"sv},
       }) {
    std::wstring text(row.text);
    EXPECT_EQ(Names(Block(row.offset, false, text)), row.names);
    if (row.offset == 24) text.erase(0, 2);  // the gap is in bytes
    EXPECT_EQ(Names(Block(row.offset, true, text)), row.names);
  }
  EXPECT_EQ(Names(Block(20, true, L"C:\\\u05d0\0\0"sv)), L"C:\\\u05d0|");
  EXPECT_EQ(Names(std::vector<std::byte>(19)), L"none");
  EXPECT_EQ(Names({}), L"none");
}

TEST(DropFiles, AnOddByteAtTheEndIsNoCharacter) {
  using namespace std::literals;
  auto block = Block(20, true, L"C:\\a\0"sv);
  block.push_back(std::byte{'x'});
  EXPECT_EQ(Names(block), L"C:\\a|");
}

}  // namespace
}  // namespace orvane
