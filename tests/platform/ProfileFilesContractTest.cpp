#include <gtest/gtest.h>

#include "platform/ScratchFolder.h"
#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include "platform/win32/Desktop.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  std::wstring folder = L"D:\\Scratch";

  OnMemory() { desktop.files.AddFolder(folder); }
};
#ifdef _WIN32
struct OnWindows {
  ScratchFolder scratch;
  win32::Desktop desktop{nullptr};
  std::wstring folder = scratch.Path().wstring();
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class ProfileFilesContract : public testing::Test {
 protected:
  void Put(std::string_view content) {
    const auto* first = reinterpret_cast<const std::byte*>(content.data());
    const auto file = m_backEnd.desktop.files.OpenToWrite(m_file, FileSystem::Open::CreateAnew);
    ASSERT_TRUE(file && file->Write({first, content.size()}));
  }

  std::wstring Text(const std::wstring& section, const std::wstring& key) {
    return profiles.Text(m_file, section, key, L"(fallback) ", 255);
  }

  BackEnd m_backEnd;
  std::wstring m_file = m_backEnd.folder + L"\\test.ini";
  ProfileFiles& profiles = m_backEnd.desktop.profiles;
};
TYPED_TEST_SUITE(ProfileFilesContract, BackEnds, );

TYPED_TEST(ProfileFilesContract, ReadsTexts) {
  this->Put(
      "; comment\r\n[First]\r\nplain=value\r\n  Spaced  =  two words  \r\n"
      "quoted=\" kept \"\r\nsingle='kept'\r\nempty=\r\nequals=a=b\r\n;hidden=no\r\n"
      "plain=second\r\n\r\n[Other]\nkey=unix\n[first]\nlate=x\n");
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* text;
  } rows[] = {
      {L"First", L"plain", L"value"},      {L"FIRST", L"Plain", L"value"},
      {L"First", L"spaced", L"two words"}, {L"First", L"quoted", L" kept "},
      {L"First", L"single", L"kept"},      {L"First", L"empty", L""},
      {L"First", L"equals", L"a=b"},       {L"First", L"hidden", L"(fallback) "},
      {L"Other", L"key", L"unix"},         {L"Other", L"plain", L"(fallback) "},
      {L"None", L"plain", L"(fallback) "},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(this->Text(row.section, row.key), row.text) << row.section << L"." << row.key;
  }
  EXPECT_EQ(this->profiles.Text(this->m_file, L"First", L"plain", L"", 3), L"val");
  EXPECT_EQ(this->profiles.Text(this->m_file, L"First", L"none", L"fallback", 3), L"fal");
  EXPECT_EQ(this->profiles.Text(this->m_file + L"x", L"First", L"plain", L"no", 255), L"no");
}

TYPED_TEST(ProfileFilesContract, ReadsNumbers) {
  this->Put("[N]\r\nplain=12\r\nminus=-7\r\ntail=12x\r\nhex=0x10\r\ntext=abc\r\nempty=\r\n");
  const struct {
    const wchar_t* key;
    std::int32_t number;
  } rows[] = {{L"plain", 12}, {L"minus", -7}, {L"tail", 12}, {L"hex", 0},
              {L"text", 0},   {L"empty", 0},  {L"none", 99}};
  for (const auto& row : rows) {
    EXPECT_EQ(this->profiles.Number(this->m_file, L"N", row.key, 99), row.number) << row.key;
  }
}

TYPED_TEST(ProfileFilesContract, WritesAndRemoves) {
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"A", L"one", L"1"));
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"A", L"two", L"2"));
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"B", L"one", L"b \u00e4"));
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"a", L"ONE", L"1 again"));
  EXPECT_EQ(this->Text(L"A", L"one"), L"1 again");
  EXPECT_EQ(this->Text(L"A", L"two"), L"2");
  EXPECT_EQ(this->Text(L"B", L"one"), L"b \u00e4");
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"A", L"one", std::nullopt));
  EXPECT_EQ(this->Text(L"A", L"one"), L"(fallback) ");
  EXPECT_EQ(this->Text(L"A", L"two"), L"2");
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"A", std::nullopt, std::nullopt));
  EXPECT_EQ(this->Text(L"A", L"two"), L"(fallback) ");
  EXPECT_EQ(this->Text(L"B", L"one"), L"b \u00e4");
  EXPECT_TRUE(this->profiles.Write(this->m_file, L"B", L"one", L"b\r\n[C]\nkey=1"));
  EXPECT_EQ(this->Text(L"B", L"one"), L"b  [C] key=1");
  EXPECT_EQ(this->Text(L"C", L"key"), L"(fallback) ");
  EXPECT_FALSE(this->profiles.Write(this->m_backEnd.folder + L"\\no\\x.ini", L"A", L"k", L"v"));
}

}  // namespace
}  // namespace orvane
