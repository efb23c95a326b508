#include "commands/CommandText.h"

#include <gtest/gtest.h>

#include <string>

#include "memory/Windows1252.h"

namespace orvane {
namespace {

/// A buffer of five after the copy into its first `size` characters.
template <class Text, class... CodePages>
Text Buffer(std::wstring_view text, std::size_t size, const CodePages&... codePage) {
  Text buffer(5, '~');
  CopyBounded(text, codePage..., std::span(buffer).first(size));
  return buffer;
}

TEST(CommandText, FillsTheBufferAndNotAByteMore) {
  using namespace std::string_literals;
  const CodePage codePage(memory::Windows1252());
  EXPECT_EQ(Buffer<std::string>(L"Item", 0, codePage), "~~~~~");
  EXPECT_EQ(Buffer<std::string>(L"Item", 1, codePage), "\0~~~~"s);
  EXPECT_EQ(Buffer<std::string>(L"Item", 4, codePage), "Ite\0~"s);
  EXPECT_EQ(Buffer<std::string>(L"\x20AC\x4E00", 5, codePage), "\x80?\0~~"s);
  EXPECT_EQ(Buffer<std::u16string>(L"Item", 0), u"~~~~~");
  EXPECT_EQ(Buffer<std::u16string>(L"Item", 4), u"Ite\0~"s);
  EXPECT_EQ(Buffer<std::u16string>(L"a\U0001F600", 4), u"a\U0001F600\0~"s);
  EXPECT_EQ(Buffer<std::u16string>(L"a\U0001F600", 3).substr(0, 2), u"a\0"s) << "half a pair";
}

}  // namespace
}  // namespace orvane
