#include <gtest/gtest.h>

#include "platform/memory/Registry.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/Registry.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Effects effects;
  memory::Faults faults;
  memory::Registry registry{effects, faults};
};
#ifdef _WIN32
struct OnWindows {
  ~OnWindows() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\OrvaneTest"); }

  win32::Registry registry;
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

std::vector<std::byte> Bytes(std::initializer_list<int> numbers) {
  std::vector<std::byte> bytes;
  for (const int number : numbers) bytes.push_back(static_cast<std::byte>(number));
  return bytes;
}

template <class BackEnd>
class RegistryContract : public testing::Test {
 protected:
  static constexpr Hive User = Hive::CurrentUser;
  const std::wstring Path = L"Software\\OrvaneTest\\Settings";

  std::int32_t Write(const std::wstring& name, const RegistryValue& value) {
    std::unique_ptr<RegistryKey> key;
    const std::int32_t result = registry.OpenToWrite(User, Path, key);
    return result != 0 ? result : key->Write(name, value);
  }

  std::int32_t Read(const std::wstring& path, const std::wstring& name, RegistryValue& value) {
    std::unique_ptr<RegistryKey> key;
    const std::int32_t result = registry.OpenToRead(User, path, key);
    return result != 0 ? result : key->Read(name, value);
  }

  BackEnd m_backEnd;
  Registry& registry = m_backEnd.registry;
};
TYPED_TEST_SUITE(RegistryContract, BackEnds, );

TYPED_TEST(RegistryContract, KeepsValuesAsTheyWereWritten) {
  const RegistryValue values[] = {
      {RegistryValue::Text, Bytes({'a', 0, 0, 0, 0xE4, 0, 0, 0})},  // a zero inside
      {RegistryValue::Text, Bytes({'a', 0})},                       // no terminator
      {RegistryValue::Text, {}},
      {RegistryValue::Number, Bytes({1, 2, 3, 0xFF})},
      {RegistryValue::Number, Bytes({1, 2})},
      {RegistryValue::Binary, Bytes({1, 2, 3})},
      {RegistryValue::Binary, std::vector<std::byte>(100'000, std::byte{7})},
      {7, Bytes({'a', 0, 0, 0, 0, 0})},
  };
  for (const RegistryValue& value : values) {
    EXPECT_EQ(this->Write(L"Value", value), 0);
    RegistryValue read;
    EXPECT_EQ(this->Read(this->Path, L"VALUE", read), 0);
    EXPECT_EQ(read.type, value.type);
    EXPECT_TRUE(read.data == value.data) << value.data.size();
  }
}

TYPED_TEST(RegistryContract, FindsKeysWithoutRegardToCaseAndToABackslashAtTheEnd) {
  EXPECT_EQ(this->Write(L"Value", {RegistryValue::Binary, Bytes({1})}), 0);
  RegistryValue read;
  EXPECT_EQ(this->Read(L"SOFTWARE\\orvaneTEST\\settings\\", L"value", read), 0);
  std::unique_ptr<RegistryKey> key;
  EXPECT_EQ(this->registry.OpenToRead(this->User, L"Software\\OrvaneTest", key), 0)
      << "keys above a new one are made too";
  EXPECT_EQ(this->registry.OpenToWrite(this->User, this->Path + L"\\", key), 0);
}

TYPED_TEST(RegistryContract, LeavesOutputsAloneWhenThereIsNothing) {
  std::unique_ptr<RegistryKey> key;
  EXPECT_EQ(this->registry.OpenToRead(this->User, L"Software\\OrvaneTest\\No", key),
            RegistryKey::NotFound);
  EXPECT_EQ(key, nullptr);
  EXPECT_EQ(this->Write(L"Value", {RegistryValue::Binary, Bytes({1})}), 0);
  RegistryValue read{RegistryValue::Number, Bytes({9})};
  EXPECT_EQ(this->Read(this->Path, L"No", read), RegistryKey::NotFound);
  EXPECT_EQ(read.type, RegistryValue::Number);
  EXPECT_EQ(read.data, Bytes({9}));
}

TYPED_TEST(RegistryContract, OpensForOnePurpose) {
  std::unique_ptr<RegistryKey> key;
  const RegistryValue value{RegistryValue::Binary, Bytes({1})};
  ASSERT_EQ(this->registry.OpenToWrite(this->User, this->Path, key), 0);
  EXPECT_EQ(key->Write(L"Value", value), 0);
  RegistryValue read;
  EXPECT_NE(key->Read(L"Value", read), 0);
  ASSERT_EQ(this->registry.OpenToRead(this->User, this->Path, key), 0);
  EXPECT_NE(key->Write(L"Value", value), 0);
  EXPECT_EQ(key->Read(L"Value", read), 0);
}

TEST(MemoryRegistry, RecordsWhatIsWritten) {
  OnMemory desktop;
  desktop.registry.SetText(Hive::CurrentUser, L"Software\\A", L"before", L"no effect");
  std::unique_ptr<RegistryKey> key;
  ASSERT_EQ(desktop.registry.OpenToWrite(Hive::CurrentUser, L"Software\\A\\", key), 0);
  key->Write(L"Text", {RegistryValue::Text, Bytes({'x', 0, 0, 0})});
  key->Write(L"Number", {RegistryValue::Number, Bytes({0xFF, 0xFF, 0xFF, 0xFF})});
  key->Write(L"Boolean", {RegistryValue::Binary, Bytes({0xFF, 0xFF})});
  using Value = memory::Effect::Value;
  const Value expected[][2] = {{Value(L"S"), Value(L"x")},
                               {Value(L"D"), Value(std::int64_t{-1})},
                               {Value(L"B"), Value(true)}};
  ASSERT_EQ(desktop.effects.All().size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const memory::Effect& effect = desktop.effects.All()[i];
    EXPECT_EQ(effect.call, "RegSet");
    EXPECT_EQ(effect.fields[0].second, Value(L"HKCU\\Software\\A"));
    EXPECT_EQ(effect.fields[2].second, expected[i][0]);
    EXPECT_EQ(effect.fields[3].second, expected[i][1]);
  }
}

TEST(MemoryRegistry, FailsAndDeniesAsTold) {
  OnMemory desktop;
  desktop.registry.SetNumber(Hive::CurrentUser, L"A\\B", L"n", 5);
  desktop.registry.SetNumber(Hive::CurrentUser, L"A\\C", L"n", 6);
  desktop.registry.Deny(Hive::CurrentUser, L"a\\b\\");
  std::unique_ptr<RegistryKey> key;
  EXPECT_EQ(desktop.registry.OpenToRead(Hive::CurrentUser, L"A\\B", key), 5);
  EXPECT_EQ(desktop.registry.OpenToWrite(Hive::CurrentUser, L"A\\B", key), 5);
  desktop.faults.FailCall(2);
  EXPECT_EQ(desktop.registry.OpenToRead(Hive::CurrentUser, L"A\\C", key), 0);
  RegistryValue value;
  EXPECT_NE(key->Read(L"n", value), 0);
  EXPECT_EQ(key->Read(L"n", value), 0);
  desktop.registry.RemoveKey(Hive::CurrentUser, L"A");
  EXPECT_EQ(key->Read(L"n", value), RegistryKey::NotFound);
  EXPECT_FALSE(desktop.registry.HasKey(Hive::CurrentUser, L"A\\C"));
}

}  // namespace
}  // namespace orvane
