#include "memory/RegFile.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "memory/RegistryText.h"
#include "support/Error.h"
#include "support/Utf16.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using namespace std::literals;

const std::string Header = "Windows Registry Editor Version 5.00\r\n\r\n";

class RegFile : public testing::Test {
 protected:
  void Import(std::string_view bytes) {
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    memory::ImportRegFile({first, bytes.size()}, registry);
  }

  /// The error's text; empty without one.
  std::wstring ErrorOf(const std::string& bytes) {
    try {
      Import(bytes);
    } catch (const Error& error) {
      return error.Description();
    }
    return {};
  }

  std::optional<std::wstring> Text(const std::wstring& name) {
    return registry.FindText(Hive::CurrentUser, L"Software\\A", name);
  }

  bool Holds(const std::wstring& name, std::uint32_t type, std::string_view bytes) {
    const auto value = registry.Find(Hive::CurrentUser, L"Software\\A", name);
    return value && value->type == type &&
           std::ranges::equal(value->data, bytes, [](std::byte one, char other) {
             return static_cast<char>(one) == other;
           });
  }

  memory::Effects effects;
  memory::Faults faults;
  memory::SystemInfo system;
  memory::Registry registry{effects, faults, system};
};

TEST_F(RegFile, ReadsEveryKindOfValue) {
  Import(Header +
         "; a comment\r\n"
         "[HKEY_CURRENT_USER\\Software\\A]\r\n"
         "@=\"default\"\r\n"
         "\"path\"=\"C:\\\\Program Files\\\\\\\"Orvane\\\"\"\r\n"
         "  \"quoted \\\"name\\\"\" = \"x\"  \r\n"
         "\"lines\"=\"one\r\ntwo\"\r\n"
         "\"number\"=dword:000000FE\r\n"
         "\"binary\"=hex:01,2,\\\r\n  fF,\\\r\n  00\r\n"
         "\"empty\"=hex:\r\n"
         "\"typed\"=hex(1):41,00,00,00,42,00,00,00\r\n"
         "\"expand\"=hex(2):25,00,54,00,45,00,4d,00,50,00,25,00,00,00\r\n"
         "\"multi\"=hex(7):61,00,00,00,00,00\n"
         "[HKEY_LOCAL_MACHINE\\Software\\B[1]]\n"
         "\"last\"=\"no line end\"");
  EXPECT_EQ(Text(L""), L"default");
  EXPECT_EQ(Text(L"PATH"), L"C:\\Program Files\\\"Orvane\"");
  EXPECT_EQ(Text(L"quoted \"name\""), L"x");
  EXPECT_EQ(Text(L"lines"), L"one\r\ntwo");
  EXPECT_TRUE(Holds(L"number", 4, "\xfe\x00\x00\x00"sv));
  EXPECT_TRUE(Holds(L"binary", 3, "\x01\x02\xff\x00"sv));
  EXPECT_TRUE(Holds(L"empty", 3, ""sv));
  EXPECT_TRUE(Holds(L"typed", 1, "\x41\x00\x00\x00\x42\x00\x00\x00"sv));
  EXPECT_TRUE(Holds(L"multi", 7, "\x61\x00\x00\x00\x00\x00"sv));
  std::unique_ptr<RegistryKey> key;
  RegistryValue expanded;
  ASSERT_EQ(registry.OpenToRead(Hive::CurrentUser, L"Software\\A", key), 0);
  EXPECT_EQ(key->Read(L"expand", expanded), 0);
  EXPECT_EQ(memory::TextOf(expanded), L"C:\\Windows\\Temp");
  EXPECT_EQ(registry.FindText(Hive::LocalMachine, L"Software\\B[1]", L"last"), L"no line end");
  EXPECT_TRUE(effects.All().empty());
}

TEST_F(RegFile, TakesBothEncodings) {
  const std::wstring text = L"[HKEY_CURRENT_USER\\Software\\A]\r\n\"n\"=\"\u00e4\u05d0\U0001F4C1\"";
  const std::wstring whole = std::wstring(Header.begin(), Header.end()) + text;
  const std::vector<std::byte> units = ToUtf16(whole);
  const std::string utf16(reinterpret_cast<const char*>(units.data()), units.size());
  for (const std::string& bytes :
       {ToUtf8(whole), "\xEF\xBB\xBF" + ToUtf8(whole), "\xFF\xFE" + utf16}) {
    registry.RemoveKey(Hive::CurrentUser, L"Software");
    EXPECT_EQ(ErrorOf(bytes), L"");
    EXPECT_EQ(Text(L"n"), L"\u00e4\u05d0\U0001F4C1");
  }
}

TEST_F(RegFile, RemovesKeysAndValues) {
  Import(Header +
         "[HKEY_CURRENT_USER\\Software\\A]\r\n\"a\"=\"1\"\r\n\"b\"=\"2\"\r\n@=\"3\"\r\n"
         "[HKEY_CURRENT_USER\\Software\\Old\\Deep]\r\n[HKEY_CURRENT_USER\\Software\\Older]\r\n");
  Import(Header +
         "[HKEY_CURRENT_USER\\Software\\A]\r\n\"a\"=-\r\n@=-\r\n"
         "[-HKEY_CURRENT_USER\\Software\\OLD]\r\n");
  EXPECT_EQ(Text(L"a"), std::nullopt);
  EXPECT_EQ(Text(L""), std::nullopt);
  EXPECT_EQ(Text(L"b"), L"2");
  EXPECT_FALSE(registry.HasKey(Hive::CurrentUser, L"Software\\Old\\Deep"));
  EXPECT_TRUE(registry.HasKey(Hive::CurrentUser, L"Software\\Older"));
}

TEST_F(RegFile, NamesTheLineOfWhatItCannotRead) {
  const std::string key = Header + "[HKEY_CURRENT_USER\\Software\\A]\r\n";  // line 3
  const struct {
    std::string bytes;
    const wchar_t* start;
  } rows[] = {
      {"", L"line 1: the file does not begin"},
      {"Windows Registry Editor Version 5.001", L"line 1: something follows"},
      {"\x80", L"line 1: neither UTF-8 nor UTF-16"},
      {Header + "\"a\"=\"1\"", L"line 3: a value outside a key"},
      {Header + "[HKEY_CURRENT_USER\\A", L"line 3: the key's closing bracket"},
      {Header + "[HKCU\\A]", L"line 3: the key does not begin"},
      {Header + "[-HKEY_USERS]", L"line 3: a hive cannot be removed"},
      {Header + "[-HKEY_USERS\\A]\r\n\"a\"=\"1\"", L"line 4: a value outside a key"},
      {key + "stray", L"line 4: neither a key"},
      {key + "\"a\"\"1\"", L"line 4: no \"=\""},
      {key + "\"a\"=", L"line 4: the value is neither"},
      {key + "\"a\"=\"open\r\n\r\n", L"line 4: the closing quote"},
      {key + "\"a\"=\"C:\\new\"", L"line 4: a \"\\\" stands alone"},
      {key + "\"a\"=\"1\" 2", L"line 4: something follows"},
      {key + "\"a\"=dword:", L"line 4: hexadecimal digits are missing"},
      {key + "\"a\"=dword:123456789", L"line 4: too many"},
      {key + "\"a\"=hex:01,\\\r\n02,\\\r\nxx", L"line 6: something follows"},
      {key + "\"a\"=hex(1:", L"line 4: \"hex(\" is not followed"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorOf(row.bytes).find(row.start), 0u) << row.start << "\n" << ErrorOf(row.bytes);
  }
  EXPECT_FALSE(registry.HasKey(Hive::CurrentUser, L"Software\\A")) << "all or nothing";
}

}  // namespace
}  // namespace orvane
