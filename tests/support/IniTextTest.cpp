#include "support/IniText.h"

#include <gtest/gtest.h>

#include "memory/Windows1252.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

using Names = std::vector<std::wstring>;

const CodePage Page(memory::Windows1252());

std::string Text(const std::vector<std::byte>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::string Utf16File(const std::wstring& text) {
  return "\xFF\xFE" + Text(ToUtf16(text));
}

IniText Read(const std::string& text) {
  return {std::as_bytes(std::span(text)), Page};
}

std::string Write(const std::string& text, const wchar_t* section,
                  const std::optional<std::wstring>& key,
                  const std::optional<std::wstring>& value) {
  return Text(WriteIniText(std::as_bytes(std::span(text)), Page, section, key, value));
}

TEST(IniText, Values) {
  const IniText ini = Read(
      "stray=0\r\n"
      "[One]\r\nPlain=value\r\n  Spaced Key \t=\t a b \t\r\nQuoted=\"  in  \"\r\nSingle=' in '\r\n"
      "Half=\"in\r\nTwice=\"\"in\"\"\r\nLone=\"\r\nEmpty=\r\nEquals=a=b\r\n;Comment=x\r\n"
      "No equals\r\n=nameless\r\nplain=second\r\nEuro=\x80\nSemicolon=a ; b\r"
      " [T\xE4wo] rest\r\nPlain=other\r\n[broken\r\nStill=two\r\n"
      "[ONE]\r\nLate=never\r\n"
      "[a]b]\r\n[]\r\nLast=end");
  EXPECT_EQ((Names{L"One", L"T\x00E4wo", L"a]b", L""}), ini.Sections());
  const auto value = [&](const wchar_t* section, const wchar_t* key) {
    const std::wstring* found = ini.Value(section, key);
    return found ? *found : L"(none)";
  };
  std::wstring one;
  for (const wchar_t* key : {L"PLAIN", L"Spaced Key", L"Quoted", L"Single", L"Half", L"Twice",
                             L"Lone", L"Empty", L"Equals", L"Euro", L"Semicolon"})
    one += value(L"one", key) + L"|";
  EXPECT_EQ(L"value|a b|  in  | in |\"in|\"in\"|\"||a=b|\x20AC|a ; b|", one);
  for (const wchar_t* key : {L";Comment", L"Comment", L"No equals", L"Late", L"stray"})
    EXPECT_EQ(L"(none)", value(L"One", key)) << key;
  EXPECT_EQ(L"other", value(L"T\x00C4WO", L"Plain"));
  EXPECT_EQ(L"two", value(L"T\x00E4wo", L"Still"));
  EXPECT_EQ(L"end", value(L"", L"Last"));
  EXPECT_EQ(L"(none)", value(L"None", L"Plain"));
}

TEST(IniText, Encodings) {
  const std::string body = "[\xC3\xA4]\r\nk=\xE2\x82\xAC\r\n";
  EXPECT_EQ(L"\x20AC", *Read("\xEF\xBB\xBF" + body).Value(L"\x00E4", L"k"));
  EXPECT_EQ(L"\x00E2\x201A\x00AC", *Read(body).Value(L"\x00C3\x00A4", L"k"));
  EXPECT_EQ(L"\U0001F600",
            *Read(Utf16File(L"[\x0416]\r\nk=\U0001F600\r\n") + "x").Value(L"\x0436", L"k"));
  for (const char* none : {"", "\xFF\xFE", "\xFF"}) EXPECT_TRUE(Read(none).Sections().empty());
  EXPECT_EQ(std::wstring(L"a\0b", 3), Read(std::string("[a\0b]", 5)).Sections().at(0));
}

TEST(IniText, EndlessLine) {
  const std::string line(5'000'000, '[');
  EXPECT_TRUE(Read(line).Sections().empty());
  EXPECT_EQ(line.size(), Read("[a]\nk=" + line).Value(L"a", L"k")->size());
  EXPECT_EQ(line + "\r\n[a]\r\nk=v\r\n", Write(line, L"a", L"k", L"v"));
}

TEST(IniText, Writing) {
  const struct {
    std::string before;
    const wchar_t* section;
    std::optional<std::wstring> key, value;
    std::string after;
  } rows[] = {
      {"; x", L"A", L"k", L"v", "; x\r\n[A]\r\nk=v\r\n"},
      {"[A]\r\nk=1\r\n[B]\r\nk=2\r\n", L"a", L"K", L"9", "[A]\r\nk=9\r\n[B]\r\nk=2\r\n"},
      {"[A]\n  k = 1 \n", L"A", L"k", L"", "[A]\n  k =\n"},
      // A new key goes behind the last line of its section that is not empty.
      {"[A]\r\nk=1\r\n\r\n[B]\r\n", L"A", L"n", L"2", "[A]\r\nk=1\r\nn=2\r\n\r\n[B]\r\n"},
      {"[A]", L"A", L"n", L"2", "[A]\r\nn=2\r\n"},
      {"[B]\nk=1\n\n\n", L"A", L"n", L"2", "[B]\nk=1\n\n\n[A]\r\nn=2\r\n"},
      // The first of a name is the one that counts.
      {"[A]\nk=1\nk=2\n[A]\nk=3\n", L"A", L"k", L"9", "[A]\nk=9\nk=2\n[A]\nk=3\n"},
      {"[A]\nk=1\nx=\x80\xFF", L"A", L"k", std::nullopt, "[A]\nx=\x80\xFF"},
      {"[A]\nk=1\n", L"Z", L"k", std::nullopt, "[A]\nk=1\n"},
      {"\n[A]\nk=1\n; c\n\n[B]\nk=2\n", L"A", std::nullopt, std::nullopt, "\n[B]\nk=2\n"},
      {"[A]\nk=1\n", L"Z", std::nullopt, std::nullopt, "[A]\nk=1\n"},
      // No value adds lines of its own.
      {"", L"A\r\n[B]", L"k\n", L"1\r\n[C]\nx=2", "[A  [B]]\r\nk =1  [C] x=2\r\n"},
      {"", L"A", L"k", L"\x20AC\x0416", "[A]\r\nk=\x80?\r\n"},
      {"\xEF\xBB\xBF[A]\n\xFF=\xC3\n", L"A", L"k", L"\x20AC",
       "\xEF\xBB\xBF[A]\n\xFF=\xC3\nk=\xE2\x82\xAC\r\n"},
      {Utf16File(L"[A]\n\xDC00=1\r\n") + "x", L"A", L"\xDC00", L"\x0416",
       Utf16File(L"[A]\n\xDC00=\x0416\r\n") + "x"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.after, Write(row.before, row.section, row.key, row.value)) << row.before;
}

}  // namespace
}  // namespace orvane
