#include "support/IniText.h"

#include <gtest/gtest.h>

#include "platform/memory/Windows1252.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

std::span<const std::byte> Bytes(const std::string& text) {
  return std::as_bytes(std::span(text));
}

std::string Text(const std::vector<std::byte>& bytes) {
  std::string text;
  for (const std::byte byte : bytes) text.push_back(static_cast<char>(byte));
  return text;
}

std::string Utf16File(const std::wstring& text) {
  return "\xFF\xFE" + Text(ToUtf16(text));
}

class IniTextTest : public testing::Test {
 protected:
  IniText Read(const std::string& text) { return {Bytes(text), m_page}; }

  std::string Write(const std::string& text, const wchar_t* section,
                    const std::optional<std::wstring>& key,
                    const std::optional<std::wstring>& value) {
    return Text(WriteIniText(Bytes(text), m_page, section, key, value));
  }

  CodePage m_page{memory::Windows1252()};
};

TEST_F(IniTextTest, Values) {
  const IniText ini = Read(
      "stray=0\r\n"
      "; [comment]\r\n"
      "[One]\r\n"
      "Plain=value\r\n"
      "  Spaced Key \t=\t a b \t\r\n"
      "Quoted=\"  in  \"\r\n"
      "Single=' in '\r\n"
      "Half=\"in\r\n"
      "Twice=\"\"in\"\"\r\n"
      "Lone=\"\r\n"
      "Empty=\r\n"
      "Equals=a=b\r\n"
      ";Comment=x\r\n"
      "No equals\r\n"
      "=nameless\r\n"
      "plain=second\r\n"
      "Euro=\x80\n"
      "Semicolon=a ; b\r"
      " [T\xE4wo] rest\r\n"
      "Plain=other\r\n"
      "[broken\r\n"
      "Still=two\r\n"
      "[ONE]\r\n"
      "Late=never\r\n"
      "[a]b]\r\n"
      "[]\r\n"
      "Last=end");
  EXPECT_EQ((std::vector<std::wstring>{L"One", L"T\x00E4wo", L"a]b", L""}), ini.Sections());
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;  // null when there is none
  } rows[] = {
      {L"one", L"PLAIN", L"value"},       {L"One", L"Spaced Key", L"a b"},
      {L"One", L"Quoted", L"  in  "},     {L"One", L"Single", L" in "},
      {L"One", L"Half", L"\"in"},         {L"One", L"Twice", L"\"in\""},
      {L"One", L"Lone", L"\""},           {L"One", L"Empty", L""},
      {L"One", L"Equals", L"a=b"},        {L"One", L"Comment", nullptr},
      {L"One", L";Comment", nullptr},     {L"One", L"No equals", nullptr},
      {L"One", L"Euro", L"\x20AC"},       {L"One", L"Semicolon", L"a ; b"},
      {L"T\x00C4WO", L"Plain", L"other"}, {L"T\x00E4wo", L"Still", L"two"},
      {L"One", L"Late", nullptr},         {L"", L"Last", L"end"},
      {L"None", L"Plain", nullptr},       {L"One", L"stray", nullptr},
  };
  for (const auto& row : rows) {
    const std::wstring* value = ini.Value(row.section, row.key);
    ASSERT_EQ(row.value == nullptr, value == nullptr) << row.section << L" " << row.key;
    if (value) {
      EXPECT_EQ(row.value, *value) << row.section << L" " << row.key;
    }
  }
}

TEST_F(IniTextTest, Encodings) {
  const std::string body = "[\xC3\xA4]\r\nk=\xE2\x82\xAC\r\n";
  EXPECT_EQ(L"\x20AC", *Read("\xEF\xBB\xBF" + body).Value(L"\x00E4", L"k"));
  EXPECT_EQ(L"\x00E2\x201A\x00AC", *Read(body).Value(L"\x00C3\x00A4", L"k"));
  EXPECT_EQ(L"\U0001F600",
            *Read(Utf16File(L"[\x0416]\r\nk=\U0001F600\r\n") + "x").Value(L"\x0436", L"k"));
  EXPECT_TRUE(Read("").Sections().empty());
  EXPECT_TRUE(Read("\xFF\xFE").Sections().empty());
  EXPECT_TRUE(Read("\xFF").Sections().empty());
  EXPECT_EQ(std::wstring(L"a\0b", 3), Read(std::string("[a\0b]", 5)).Sections().at(0));
}

TEST_F(IniTextTest, EndlessLine) {
  const std::string line(5'000'000, '[');
  EXPECT_TRUE(Read(line).Sections().empty());
  EXPECT_EQ(line.size(), Read("[a]\nk=" + line).Value(L"a", L"k")->size());
  EXPECT_EQ(line + "\r\n[a]\r\nk=v\r\n", Write(line, L"a", L"k", L"v"));
}

TEST_F(IniTextTest, Writing) {
  const struct {
    const char* before;
    const wchar_t* section;
    std::optional<std::wstring> key;
    std::optional<std::wstring> value;
    const char* after;
  } rows[] = {
      {"", L"A", L"k", L"v", "[A]\r\nk=v\r\n"},
      {"; x", L"A", L"k", L"v", "; x\r\n[A]\r\nk=v\r\n"},
      {"[A]\r\nk=1\r\n[B]\r\nk=2\r\n", L"a", L"K", L"9", "[A]\r\nk=9\r\n[B]\r\nk=2\r\n"},
      {"[A]\n  k = 1 \n", L"A", L"k", L"", "[A]\n  k =\n"},
      // A new key goes behind the last line of its section that is not empty.
      {"[A]\r\nk=1\r\n\r\n[B]\r\n", L"A", L"n", L"2", "[A]\r\nk=1\r\nn=2\r\n\r\n[B]\r\n"},
      {"[A]", L"A", L"n", L"2", "[A]\r\nn=2\r\n"},
      {"[A]\nk=1", L"A", L"n", L"2", "[A]\nk=1\r\nn=2\r\n"},
      {"[B]\nk=1\n\n\n", L"A", L"n", L"2", "[B]\nk=1\n\n\n[A]\r\nn=2\r\n"},
      // The first of a name is the one that counts.
      {"[A]\nk=1\nk=2\n[A]\nk=3\n", L"A", L"k", L"9", "[A]\nk=9\nk=2\n[A]\nk=3\n"},
      {"[A]\nk=1\nx=\x80\xFF\n", L"A", L"k", std::nullopt, "[A]\nx=\x80\xFF\n"},
      {"[A]\nk=1", L"A", L"k", std::nullopt, "[A]\n"},
      {"[A]\nk=1\n", L"A", L"z", std::nullopt, "[A]\nk=1\n"},
      {"[A]\nk=1\n", L"Z", L"k", std::nullopt, "[A]\nk=1\n"},
      {"\n[A]\nk=1\n; c\n\n[B]\nk=2\n", L"A", std::nullopt, std::nullopt, "\n[B]\nk=2\n"},
      {"[B]\r\n[A]\r\nk=1", L"A", std::nullopt, std::nullopt, "[B]\r\n"},
      {"[A]\nk=1\n", L"Z", std::nullopt, std::nullopt, "[A]\nk=1\n"},
      // No value adds lines of its own.
      {"", L"A\r\n[B]", L"k\n", L"1\r\n[C]\nx=2", "[A  [B]]\r\nk =1  [C] x=2\r\n"},
      {"", L"A", L"k", L"\x20AC\x0416", "[A]\r\nk=\x80?\r\n"},
      {"\xEF\xBB\xBF[A]\n\xFF=\xC3\n", L"A", L"k", L"\x20AC",
       "\xEF\xBB\xBF[A]\n\xFF=\xC3\nk=\xE2\x82\xAC\r\n"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(row.after, Write(row.before, row.section, row.key, row.value)) << row.before;

  EXPECT_EQ(Utf16File(L"[A]\n\xDC00=\x0416\r\n") + "x",
            Write(Utf16File(L"[A]\n\xDC00=1\r\n") + "x", L"A", L"\xDC00", L"\x0416"));
}

TEST_F(IniTextTest, WhatIsWrittenIsRead) {
  std::string file;
  for (const wchar_t* key : {L"Type", L"Order", L"Actions"}) {
    file = Write(file, L"{1-2}", key, L"~{ENTER}[orv_pause 5]=;");
    file = Write(file, L"other]", key, L"2");
  }
  file = Write(file, L"{1-2}", L"Order", std::nullopt);
  const IniText ini = Read(file);
  EXPECT_EQ((std::vector<std::wstring>{L"{1-2}", L"other]"}), ini.Sections());
  EXPECT_EQ(L"~{ENTER}[orv_pause 5]=;", *ini.Value(L"{1-2}", L"actions"));
  EXPECT_EQ(nullptr, ini.Value(L"{1-2}", L"Order"));
  EXPECT_EQ(L"2", *ini.Value(L"OTHER]", L"Order"));
}

}  // namespace
}  // namespace orvane
