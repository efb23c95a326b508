#include "platform/AnyDesktop.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

using namespace std::literals;

class RegistryContract : public AnyDesktop {
 protected:
#ifdef _WIN32
  ~RegistryContract() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\OrvaneTest");
  }
#endif

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

  static constexpr Hive User = Hive::CurrentUser;
  const std::wstring Path = L"Software\\OrvaneTest\\Settings";
  const RegistryValue One{RegistryValue::Binary, Bytes("\1")};
  Registry& registry = m_platform.registry;
};

INSTANTIATE_TEST_SUITE_P(, RegistryContract, EveryDesktop(), NameOfDesktop);

TEST_P(RegistryContract, KeepsValuesAsTheyWereWritten) {
  const RegistryValue values[] = {
      {RegistryValue::Text, Bytes("a\0\0\0\xE4\0\0\0"sv)},  // a zero inside
      {RegistryValue::Text, Bytes("a\0"sv)},                // no terminator
      {RegistryValue::Text, {}},
      {RegistryValue::Number, Bytes("\1\2\3\xFF")},
      {RegistryValue::Number, Bytes("\1\2")},
      {RegistryValue::Binary, std::vector<std::byte>(100'000, std::byte{7})},
      {7, Bytes("a\0\0\0\0\0"sv)},
  };
  for (const RegistryValue& value : values) {
    EXPECT_EQ(Write(L"Value", value), 0);
    RegistryValue read;
    EXPECT_EQ(Read(Path, L"VALUE", read), 0);
    EXPECT_EQ(read.type, value.type);
    EXPECT_TRUE(read.data == value.data) << value.data.size();
  }
}

TEST_P(RegistryContract, PutsTheEnvironmentIntoTexts) {
  const std::wstring root = m_platform.system.Environment(L"SystemRoot");
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"%systemroot%\\a%SYSTEMROOT%", root + L"\\a" + root},
      {L"%ORVANE_NONE%, %SystemRoot%, 100 %", L"%ORVANE_NONE%, " + root + L", 100 %"},
      {L"%", L"%"},
      {L"%%", L"%%"},
      {L"", L""},
  };
  for (const auto& [stored, expanded] : rows) {
    EXPECT_EQ(Write(L"Value", {RegistryValue::TextToExpand, ToUtf16(stored)}), 0);
    RegistryValue read;
    EXPECT_EQ(Read(Path, L"Value", read), 0);
    EXPECT_EQ(read.type, RegistryValue::Text);
    EXPECT_EQ(FromUtf16(read.data), expanded + L'\0');
  }
}

TEST_P(RegistryContract, FindsKeysWithoutRegardToCaseAndToABackslashAtTheEnd) {
  EXPECT_EQ(Write(L"Value", One), 0);
  RegistryValue read;
  EXPECT_EQ(Read(L"SOFTWARE\\orvaneTEST\\settings\\", L"value", read), 0);
  std::unique_ptr<RegistryKey> key;
  EXPECT_EQ(registry.OpenToRead(User, L"Software\\OrvaneTest", key), 0) << "made on the way";
  EXPECT_EQ(registry.OpenToWrite(User, Path + L"\\", key), 0);
}

TEST_P(RegistryContract, LeavesOutputsAloneWhenThereIsNothing) {
  std::unique_ptr<RegistryKey> key;
  EXPECT_EQ(registry.OpenToRead(User, L"Software\\OrvaneTest\\No", key), RegistryKey::NotFound);
  EXPECT_EQ(key, nullptr);
  EXPECT_EQ(Write(L"Value", One), 0);
  RegistryValue read{RegistryValue::Number, Bytes("\7")};
  EXPECT_EQ(Read(Path, L"No", read), RegistryKey::NotFound);
  EXPECT_EQ(read.type, RegistryValue::Number);
  EXPECT_EQ(read.data, Bytes("\7"));
}

TEST_P(RegistryContract, OpensForOnePurpose) {
  std::unique_ptr<RegistryKey> key;
  ASSERT_EQ(registry.OpenToWrite(User, Path, key), 0);
  EXPECT_EQ(key->Write(L"Value", One), 0);
  RegistryValue read;
  EXPECT_NE(key->Read(L"Value", read), 0);
  ASSERT_EQ(registry.OpenToRead(User, Path, key), 0);
  EXPECT_NE(key->Write(L"Value", One), 0);
  EXPECT_EQ(key->Read(L"Value", read), 0);
}

}  // namespace
}  // namespace orvane
