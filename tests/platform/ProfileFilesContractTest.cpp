#include "platform/AnyDesktop.h"

namespace orvane {
namespace {

class ProfileFilesContract : public AnyDisk {
 protected:
  std::wstring Text(const std::wstring& section, const std::wstring& key) {
    return profiles.Text(m_file, section, key, L"(fallback) ", 255);
  }

  std::wstring m_file = At(L"test.ini");
  ProfileFiles& profiles = m_platform.profiles;
};

INSTANTIATE_TEST_SUITE_P(, ProfileFilesContract, EveryDesktop(), NameOfDesktop);

TEST_P(ProfileFilesContract, ReadsTextsAndNumbers) {
  Put(L"test.ini",
      "; comment\r\n[First]\r\nplain=value\r\n  Spaced  =  two words  \r\n"
      "quoted=\" kept \"\r\nsingle='kept'\r\nempty=\r\nequals=a=b\r\n;hidden=no\r\n"
      "plain=second\r\nminus=-7\r\ntail=12x\r\nhex=0x10\r\n"
      "\r\n[Other]\nkey=unix\n[first]\nlate=x\n");
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* text;
  } rows[] = {
      {L"FIRST", L"Plain", L"value"},   {L"First", L"spaced", L"two words"},
      {L"First", L"quoted", L" kept "}, {L"First", L"single", L"kept"},
      {L"First", L"empty", L""},        {L"First", L"equals", L"a=b"},
      {L"Other", L"key", L"unix"},      {L"First", L"hidden", L"(fallback) "},
      {L"None", L"k", L"(fallback) "},  {L"Other", L"plain", L"(fallback) "},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Text(row.section, row.key), row.text) << row.section << L"." << row.key;
  }
  EXPECT_EQ(profiles.Text(m_file, L"First", L"plain", L"", 3), L"val");
  EXPECT_EQ(profiles.Text(m_file, L"First", L"none", L"fallback", 3), L"fal");
  EXPECT_EQ(profiles.Text(m_file + L"x", L"First", L"plain", L"no", 255), L"no");

  const std::pair<const wchar_t*, int> numbers[] = {{L"minus", -7}, {L"tail", 12}, {L"hex", 0},
                                                    {L"single", 0}, {L"empty", 0}, {L"none", 99}};
  for (const auto& [key, number] : numbers) {
    EXPECT_EQ(profiles.Number(m_file, L"First", key, 99), number) << key;
  }
}

TEST_P(ProfileFilesContract, WritesAndRemoves) {
  EXPECT_TRUE(profiles.Write(m_file, L"A", L"one", L"1"));
  EXPECT_TRUE(profiles.Write(m_file, L"A", L"two", L"2"));
  EXPECT_TRUE(profiles.Write(m_file, L"B", L"one", L"b \u00e4"));
  EXPECT_TRUE(profiles.Write(m_file, L"a", L"ONE", L"1 again"));
  EXPECT_EQ(Text(L"A", L"one"), L"1 again");
  EXPECT_TRUE(profiles.Write(m_file, L"A", L"one", std::nullopt));
  EXPECT_EQ(Text(L"A", L"one"), L"(fallback) ");
  EXPECT_EQ(Text(L"A", L"two"), L"2");
  EXPECT_TRUE(profiles.Write(m_file, L"A", std::nullopt, std::nullopt));
  EXPECT_EQ(Text(L"A", L"two"), L"(fallback) ");
  EXPECT_EQ(Text(L"B", L"one"), L"b \u00e4");
  EXPECT_TRUE(profiles.Write(m_file, L"B", L"one", L"b\r\n[C]\nkey=1"));
  EXPECT_EQ(Text(L"B", L"one"), L"b  [C] key=1");
  EXPECT_EQ(Text(L"C", L"key"), L"(fallback) ");
  EXPECT_FALSE(profiles.Write(At(L"no\\x.ini"), L"A", L"k", L"v"));
}

}  // namespace
}  // namespace orvane
