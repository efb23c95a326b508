#include "menudata/RegistryAccess.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "platform/memory/Desktop.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

const std::wstring Path = L"Software\\Tarnwick\\Orvane\\";
constexpr Hive User = Hive::CurrentUser;

std::vector<std::byte> Bytes(std::vector<int> numbers) {
  std::vector<std::byte> bytes;
  for (const int number : numbers) bytes.push_back(static_cast<std::byte>(number));
  return bytes;
}

struct RegistryAccessTest : testing::Test {
  std::int32_t Get(std::wstring_view kind, const RegValue& fallback, RegValue& result,
                   const std::wstring& hive = L"HKCU") {
    return RegGet(access, hive, Path, L"Value", kind, fallback, result);
  }
  std::int32_t Set(std::wstring_view kind, const RegValue& value,
                   const std::wstring& hive = L"HKCU") {
    return RegSet(access, hive, Path, L"Value", kind, value);
  }
  void Store(std::uint32_t type, std::vector<std::byte> data) {
    desktop.registry.Set(User, Path, L"Value", {type, std::move(data)});
  }

  memory::Desktop desktop;
  RegistryAccess access{desktop.registry, desktop.files, desktop.profiles};
};

constexpr std::uint32_t Sz = RegistryValue::Text;
constexpr std::uint32_t Binary = RegistryValue::Binary;
constexpr std::uint32_t Dword = RegistryValue::Number;
constexpr std::uint32_t ExpandSz = 2;

// Each row: what is stored, how it is asked for, and what comes back (nothing: the default).
TEST_F(RegistryAccessTest, ReadsValuesOfTheRightFormOnly) {
  const struct {
    std::uint32_t type;
    std::vector<int> data;
    const wchar_t* kind;
    RegValue fallback;
    std::optional<RegValue> expected;
  } cases[] = {
      {Sz, {'a', 0, 'b', 0, 0, 0}, L"S", L"-", RegValue(L"ab")},
      {Sz, {'a', 0, 0, 0, 'b', 0, 0, 0}, L"s", L"-", RegValue(std::wstring(L"a\0b", 3))},
      {Sz, {'a', 0, 0, 0, 0, 0}, L"S", L"-", RegValue(std::wstring(L"a\0", 2))},
      {Sz, {0, 0}, L"S", L"-", RegValue(L"")},
      {Sz, {}, L"S", L"-", std::nullopt},
      {Sz, {'a', 0, 'b', 0}, L"S", L"-", std::nullopt},
      {Sz, {'a', 0, 0, 0, 0}, L"S", L"-", std::nullopt},
      {ExpandSz, {'a', 0, 0, 0}, L"S", L"-", std::nullopt},
      {Dword, {1, 0, 0, 0}, L"S", L"-", std::nullopt},
      {Dword, {5, 0, 0, 0}, L"BOOL", false, RegValue(true)},
      {Dword, {0, 0, 0, 0}, L"bool", true, RegValue(false)},
      {Dword, {1, 0}, L"BOOL", false, std::nullopt},
      {Binary, {1, 0, 0, 0}, L"BOOL", false, std::nullopt},
      {Sz, {'1', 0, 0, 0}, L"BOOL", false, std::nullopt},
      {Dword, {0xFE, 0xFF, 0xFF, 0xFF}, L"D", 7, RegValue(-2)},
      {Dword, {1, 2, 3, 0x84}, L"d", 7, RegValue(static_cast<std::int32_t>(0x84030201))},
      {Dword, {}, L"D", 7, std::nullopt},
      {Dword, {1, 0, 0, 0, 0}, L"D", 7, std::nullopt},
      {Sz, {'9', 0, 0, 0}, L"D", 7, std::nullopt},
      {Binary, {0xFF, 0xFF}, L"B", false, RegValue(true)},
      {Binary, {0, 1}, L"b", false, RegValue(true)},
      {Binary, {0, 0}, L"B", true, RegValue(false)},
      {Binary, {1}, L"B", false, std::nullopt},
      {Dword, {1, 0, 0, 0}, L"B", false, std::nullopt},
  };
  int row = 0;
  for (const auto& value : cases) {
    Store(value.type, Bytes(value.data));
    RegValue result;
    EXPECT_EQ(Get(value.kind, value.fallback, result), value.expected ? 0 : InvalidData) << row;
    EXPECT_EQ(result, value.expected.value_or(value.fallback)) << row;
    ++row;
  }
}

TEST_F(RegistryAccessTest, StoresEachKindInItsForm) {
  const struct {
    const wchar_t* kind;
    RegValue value;
    std::uint32_t type;
    std::vector<int> data;
  } cases[] = {
      {L"S", L"ab", Sz, {'a', 0, 'b', 0, 0, 0}},
      {L"s", std::wstring(L"a\0", 2), Sz, {'a', 0, 0, 0, 0, 0}},
      {L"B", true, Binary, {0xFF, 0xFF}},
      {L"B", false, Binary, {0, 0}},
      {L"BOOL", true, Dword, {1, 0, 0, 0}},
      {L"bool", false, Dword, {0, 0, 0, 0}},
      {L"D", -2, Dword, {0xFE, 0xFF, 0xFF, 0xFF}},
  };
  for (const auto& row : cases) {
    ASSERT_EQ(Set(row.kind, row.value), 0) << row.kind;
    const auto stored = desktop.registry.Find(User, Path, L"Value");
    ASSERT_TRUE(stored) << row.kind;
    EXPECT_EQ(stored->type, row.type) << row.kind;
    EXPECT_EQ(stored->data, Bytes(row.data)) << row.kind;
    RegValue back;
    EXPECT_EQ(Get(row.kind, RegValue(), back), 0) << row.kind;
    EXPECT_EQ(back, row.value) << row.kind;
  }
}

TEST_F(RegistryAccessTest, SaysWhatFailed) {
  RegValue result;
  EXPECT_EQ(Get(L"S", L"-", result), RegistryKey::NotFound) << "no key";
  EXPECT_EQ(result, RegValue(L"-"));
  desktop.registry.AddKey(User, Path);
  EXPECT_EQ(Get(L"S", L"-", result), RegistryKey::NotFound) << "no value";
  EXPECT_EQ(Get(L"S", L"-", result, L"HKXX"), InvalidHive);
  EXPECT_EQ(result, RegValue(L"-"));
  EXPECT_EQ(Set(L"S", L"x", L"HKXX"), InvalidHive);
  EXPECT_EQ(Set(L"D", L"x"), InvalidData);
  Store(Dword, Bytes({1, 0, 0, 0}));
  EXPECT_EQ(Get(L"Q", 7, result), 0) << "an unknown kind reads nothing";
  EXPECT_EQ(result, RegValue(7));
  EXPECT_EQ(Set(L"Q", 8), 0);
  EXPECT_EQ(desktop.registry.FindNumber(User, Path, L"Value"), 1u);
  desktop.registry.Deny(User, Path);
  EXPECT_EQ(Get(L"D", 7, result), 5);
  EXPECT_EQ(Set(L"D", 8), 5);
}

TEST_F(RegistryAccessTest, FindsHivesInAnyLetterCase) {
  const std::pair<const wchar_t*, Hive> hives[] = {
      {L"hkcu", Hive::CurrentUser}, {L"HKLM", Hive::LocalMachine},  {L"hKu", Hive::Users},
      {L"HKDD", Hive::DynData},     {L"HKCC", Hive::CurrentConfig}, {L"HKCR", Hive::ClassesRoot}};
  for (const auto& [name, hive] : hives) {
    EXPECT_EQ(Set(L"S", std::wstring(name), name), 0) << name;
    EXPECT_EQ(desktop.registry.FindText(hive, Path, L"Value"), name);
  }
}

TEST_F(RegistryAccessTest, TakesAFileForAHive) {
  const std::wstring file = L"C:\\settings.ini";
  desktop.files.AddFile(file, "[Part]\r\nText=some text\r\nNumber=-12x\r\n");
  const auto get = [&](const wchar_t* entry, const wchar_t* kind, RegValue fallback,
                       RegValue& result) {
    return RegGet(access, file, L"Part", entry, kind, fallback, result);
  };
  RegValue result;
  EXPECT_EQ(get(L"Text", L"S", L"-", result), 9);
  EXPECT_EQ(result, RegValue(L"some text"));
  EXPECT_EQ(get(L"None", L"S", L"other", result), 5);
  EXPECT_EQ(result, RegValue(L"other"));
  EXPECT_EQ(get(L"Number", L"D", 7, result), -12);
  EXPECT_EQ(result, RegValue(-12));
  EXPECT_EQ(get(L"None", L"D", 7, result), 0);
  EXPECT_EQ(result, RegValue(0));
  EXPECT_EQ(RegSet(access, file, L"Part", L"New", L"S", L"x"), 1);
  EXPECT_EQ(get(L"New", L"S", L"-", result), 1);
  EXPECT_EQ(RegSet(access, file, L"Part", L"New", L"D", 1), InvalidHive);
}

}  // namespace
}  // namespace orvane
