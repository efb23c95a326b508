#include "commands/CommandText.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/memory/Windows1252.h"

namespace orvane {
namespace {

constexpr char Untouched = '\x7E';
constexpr char16_t UntouchedUnit = 0x7E7E;

/// What `size` of a larger buffer hold after the copy; the rest must be as it was.
std::string Ansi(std::wstring_view text, std::size_t size) {
  const CodePage codePage(memory::Windows1252());
  std::vector<char> buffer(size + 4, Untouched);
  CopyBounded(text, codePage, std::span(buffer).first(size));
  for (std::size_t i = size; i < buffer.size(); ++i) EXPECT_EQ(buffer[i], Untouched);
  return std::string(buffer.data(), size);
}

std::u16string Wide(std::wstring_view text, std::size_t size) {
  std::vector<char16_t> buffer(size + 4, UntouchedUnit);
  CopyBounded(text, std::span(buffer).first(size));
  for (std::size_t i = size; i < buffer.size(); ++i) EXPECT_EQ(buffer[i], UntouchedUnit);
  return std::u16string(buffer.data());
}

TEST(CommandText, FillsTheBufferAndNotAByteMore) {
  using namespace std::string_literals;
  EXPECT_EQ(Ansi(L"Item3", 0), "");
  EXPECT_EQ(Ansi(L"Item3", 1), "\0"s);
  EXPECT_EQ(Ansi(L"Item3", 4), "Ite\0"s);
  EXPECT_EQ(Ansi(L"Item3", 6), "Item3\0"s);
  EXPECT_EQ(Ansi(L"\x20AC\x4E00", 3), "\x80?\0"s);
  EXPECT_EQ(Ansi(L"", 2), "\0~"s);
  EXPECT_EQ(Wide(L"Item3", 1), u"");
  EXPECT_EQ(Wide(L"Item3", 4), u"Ite");
  EXPECT_EQ(Wide(L"Item3", 6), u"Item3");
  CopyBounded(L"Item3", std::span<char16_t>());
}

TEST(CommandText, SplitsNoPairOfSurrogates) {
  EXPECT_EQ(Wide(L"a\U0001F600", 4), u"a\U0001F600");
  EXPECT_EQ(Wide(L"a\U0001F600", 3), u"a");
  EXPECT_EQ(Wide(L"a\U0001F600", 2), u"a");
}

}  // namespace
}  // namespace orvane
