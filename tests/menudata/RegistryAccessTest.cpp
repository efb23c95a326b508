#include "menudata/RegistryAccess.h"

#include <gtest/gtest.h>

#include <vector>

#include "menudata/World.h"

namespace orvane {
namespace {

const std::wstring Path = L"Software\\Tarnwick\\Orvane\\";
constexpr Hive User = Hive::CurrentUser;

using test::Bytes;

struct RegistryAccessTest : testing::Test {
  std::int32_t Get(std::wstring_view kind, const RegValue& fallback,
                   const wchar_t* hive = L"HKCU") {
    return RegGet(access, hive, Path, L"Value", kind, fallback, result);
  }
  std::int32_t Set(std::wstring_view kind, const RegValue& value, const wchar_t* hive = L"HKCU") {
    return RegSet(access, hive, Path, L"Value", kind, value);
  }

  memory::Desktop desktop;
  RegistryAccess access{desktop.registry, desktop.files, desktop.profiles};
  RegValue result;
};

constexpr std::uint32_t Sz = RegistryValue::Text;
constexpr std::uint32_t Binary = RegistryValue::Binary;
constexpr std::uint32_t Dword = RegistryValue::Number;
constexpr std::uint32_t ExpandSz = RegistryValue::TextToExpand;

TEST_F(RegistryAccessTest, StoresEachKindInItsFormAndReadsItBack) {
  const struct {
    const wchar_t* kind;
    RegValue value;
    std::uint32_t type;
    std::vector<int> data;
  } rows[] = {
      {L"S", L"", Sz, {0, 0}},
      {L"s", std::wstring(L"a\0b\0", 4), Sz, {'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0}},
      {L"B", true, Binary, {0xFF, 0xFF}},
      {L"b", false, Binary, {0, 0}},
      {L"BOOL", true, Dword, {1, 0, 0, 0}},
      {L"D", static_cast<std::int32_t>(0x84030201), Dword, {1, 2, 3, 0x84}},
  };
  for (const auto& row : rows) {
    ASSERT_EQ(Set(row.kind, row.value), 0) << row.kind;
    const auto stored = desktop.registry.Find(User, Path, L"Value");
    ASSERT_TRUE(stored) << row.kind;
    EXPECT_EQ(stored->type, row.type) << row.kind;
    EXPECT_EQ(stored->data, Bytes(row.data)) << row.kind;
    EXPECT_EQ(Get(row.kind, L"-"), 0) << row.kind;
    EXPECT_EQ(result, row.value) << row.kind;
  }
}

TEST_F(RegistryAccessTest, ReadsValuesOfTheRightFormOnly) {
  const auto get = [&](std::uint32_t type, const std::vector<int>& data, const wchar_t* kind) {
    desktop.registry.Set(User, Path, L"Value", {type, Bytes(data)});
    const std::int32_t error = Get(kind, L"-");
    EXPECT_EQ(error, result == RegValue(L"-") ? InvalidData : 0) << kind;
    return result;
  };
  EXPECT_EQ(get(Dword, {0, 5, 0, 0}, L"BOOL"), RegValue(true));
  EXPECT_EQ(get(Binary, {0, 1}, L"B"), RegValue(true));
  EXPECT_EQ(get(Binary, {1, 0, 0, 0}, L"D"), RegValue(1));
  EXPECT_EQ(get(Binary, {0, 0, 1, 0}, L"BOOL"), RegValue(true));
  EXPECT_EQ(get(Sz, {}, L"S"), RegValue(L""));
  EXPECT_EQ(get(Sz, {'a', 0, 'b', 0}, L"S"), RegValue(L"ab"));
  EXPECT_EQ(get(ExpandSz, {'%', 0, 'x', 0, '%', 0, 0, 0}, L"S"), RegValue(L"%x%"));
  EXPECT_EQ(get(Binary, {1}, L"B"), RegValue(L"-"));
  EXPECT_EQ(get(Dword, {1, 0, 0, 0}, L"B"), RegValue(L"-"));
  EXPECT_EQ(get(Dword, {1, 0, 0, 0, 0}, L"D"), RegValue(L"-"));
  EXPECT_EQ(get(Sz, {1, 0, 0, 0}, L"D"), RegValue(L"-"));
  EXPECT_EQ(get(Sz, {'a', 0, 0, 0, 0}, L"S"), RegValue(L"-"));
  EXPECT_EQ(get(Binary, {'a', 0}, L"S"), RegValue(L"-"));
}

TEST_F(RegistryAccessTest, SaysWhatFailed) {
  EXPECT_EQ(Get(L"S", L"-"), RegistryKey::NotFound) << "no key";
  EXPECT_EQ(Set(L"D", L"x"), InvalidData);
  EXPECT_EQ(Get(L"S", L"-"), RegistryKey::NotFound) << "no value";
  EXPECT_EQ(Set(L"Q", 8), 0);
  EXPECT_EQ(Get(L"Q", 7), 0) << "an unknown kind stores and reads nothing";
  EXPECT_EQ(result, RegValue(7));
  EXPECT_FALSE(desktop.registry.Find(User, Path, L"Value"));
  EXPECT_EQ(Get(L"S", L"-", L"HKXX"), InvalidHive);
  EXPECT_EQ(result, RegValue(L"-"));
  EXPECT_EQ(Set(L"S", L"x", L"HKXX"), InvalidHive);
  desktop.registry.Deny(User, Path);
  EXPECT_EQ(Get(L"D", 7), 5);
  EXPECT_EQ(Set(L"D", 8), 5);
}

TEST_F(RegistryAccessTest, FindsHivesInAnyLetterCase) {
  using Names = std::pair<const wchar_t*, Hive>;
  for (const auto& [name, hive] : {Names{L"hkLM", Hive::LocalMachine}, {L"HKU", Hive::Users}}) {
    EXPECT_EQ(Set(L"S", name, name), 0) << name;
    EXPECT_EQ(desktop.registry.FindText(hive, Path, L"Value"), name);
  }
}

TEST_F(RegistryAccessTest, TakesAFileForAHive) {
  const std::wstring file = L"C:\\settings.ini";
  desktop.files.AddFile(file, "[Part]\r\nNumber=-12x\r\n");
  const auto get = [&](const wchar_t* entry, const wchar_t* kind, RegValue fallback) {
    return RegGet(access, file, L"Part", entry, kind, fallback, result);
  };
  EXPECT_EQ(get(L"Text", L"S", L"other"), 5);
  EXPECT_EQ(result, RegValue(L"other"));
  EXPECT_EQ(RegSet(access, file, L"Part", L"Text", L"S", L"some text"), 1);
  EXPECT_EQ(get(L"Text", L"S", L"-"), 9);
  EXPECT_EQ(result, RegValue(L"some text"));
  EXPECT_EQ(get(L"Number", L"D", 7), -12);
  EXPECT_EQ(result, RegValue(-12));
  EXPECT_EQ(RegSet(access, file, L"Part", L"Text", L"D", 1), InvalidHive);
}

}  // namespace
}  // namespace orvane
