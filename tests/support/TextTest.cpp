#include "support/Text.h"

#include <gtest/gtest.h>

#include "memory/Windows1252.h"
#include "support/CodePage.h"
#include "support/Utf16.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

std::vector<std::byte> Bytes(std::initializer_list<int> values) {
  std::vector<std::byte> bytes;
  for (const int value : values) bytes.push_back(static_cast<std::byte>(value));
  return bytes;
}

TEST(Text, CaseAndBlanks) {
  // Latin, Greek with accents, Cyrillic beyond Russian, Armenian, Vietnamese, full width.
  const std::wstring upper = L"AZ09_\x00C4\x0178\x0150\x03A9\x0401\x0386\x0490\x0531\x1EA0\xFF21";
  const std::wstring lower = L"az09_\x00E4\x00FF\x0151\x03C9\x0451\x03AC\x0491\x0561\x1EA1\xFF41";
  EXPECT_EQ(lower, LowerCase(upper));
  EXPECT_EQ(upper, UpperCase(lower));
  // Neither the multiplication sign nor the sharp s have another case.
  EXPECT_EQ(L"\x00D7\x00DF\x00F7", LowerCase(L"\x00D7\x00DF\x00F7"));
  EXPECT_EQ(L"\x00D7\x00DF\x00F7", UpperCase(L"\x00D7\x00DF\x00F7"));
  for (int c = 0; c < 0x10000; ++c) {
    const auto small = LowerCase(static_cast<wchar_t>(c));
    ASSERT_EQ(small, LowerCase(small)) << c;
    ASSERT_EQ(UpperCase(static_cast<wchar_t>(c)), UpperCase(small)) << c;
  }
  EXPECT_EQ(L"a b", Trim(L"  a b "));
  EXPECT_EQ(L"", Trim(L"   "));
}

TEST(CodePage, EveryByteComesBack) {
  const CodePage page(memory::Windows1252());
  std::vector<std::byte> all;
  for (int i = 0; i < 256; ++i) all.push_back(static_cast<std::byte>(i));
  EXPECT_EQ(all, page.Encode(page.Decode(all)));
  EXPECT_EQ(Bytes({0x80, '?', '?', 0}), page.Encode(std::wstring(L"\x20AC\x0416\x0080\0", 4)));
}

TEST(Unicode, BytesAndBack) {
  EXPECT_EQ(Bytes({0x41, 0, 0x3D, 0xD8, 0x00, 0xDE}), ToUtf16(L"A\U0001F600"));
  EXPECT_EQ(L"\U0001F600x", FromUtf16(Bytes({0x3D, 0xD8, 0x00, 0xDE, 'x', 0, 'y'})));
  // Halves of a pair in the wrong order, twice, at the end.
  const auto halves = Bytes({0x00, 0xDE, 0x3D, 0xD8, 0x3D, 0xD8, 0x00, 0xDE, 0xFF, 0xDB});
  EXPECT_EQ(halves, ToUtf16(FromUtf16(halves)));

  EXPECT_EQ("A\xE2\x82\xAC\xF0\x9F\x98\x80", ToUtf8(L"A\x20AC\U0001F600"));
  EXPECT_EQ(L"A\x20AC\U0001F600", FromUtf8("A\xE2\x82\xAC\xF0\x9F\x98\x80"));
  for (const char* bad : {"\x80", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF5\x80\x80\x80"})
    EXPECT_FALSE(FromUtf8(bad));
}

}  // namespace
}  // namespace orvane
