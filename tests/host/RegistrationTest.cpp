#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>

#include "host/Library.h"
#include "support/Text.h"

namespace orvane::host {
namespace {

using Lines = std::vector<std::wstring>;
using DllInstall = HRESULT WINAPI(BOOL, const wchar_t*);

constexpr wchar_t ClassId[] = L"{493E3910-BC83-443B-9017-F5B53DB5F5C4}";

/// A value of a key of the classes; empty without one.
std::wstring ValueOf(HKEY hive, const std::wstring& key, const wchar_t* name = nullptr) {
  wchar_t text[MAX_PATH] = L"";
  DWORD size = sizeof text;
  RegGetValueW(hive, (L"Software\\Classes\\" + key).c_str(), name, RRF_RT_REG_SZ, nullptr, text,
               &size);
  return text;
}

void AddKeys(HKEY hive, const std::wstring& path, const std::wstring& shown, Lines& lines) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(hive, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  lines.push_back(LowerCase(shown));
  wchar_t name[256];
  for (DWORD i = 0; RegEnumKeyW(key, i, name, 256) == ERROR_SUCCESS; ++i) {
    AddKeys(hive, path + L"\\" + name, shown + L"\\" + name, lines);
  }
  RegCloseKey(key);
}

/// The keys of all classes of the hive, sorted. In lower case, since names differ from system to
/// system: "TypeLib" is "Typelib" on some.
Lines Classes(HKEY hive) {
  Lines lines;
  AddKeys(hive, L"Software\\Classes", L"", lines);
  // Shared by all classes: a user may have none of his own yet.
  const Lines shared = {L"", L"\\clsid", L"\\interface", L"\\typelib"};
  std::erase_if(lines, [&](const std::wstring& line) {
    const bool mirror = line.starts_with(L"\\wow6432node");  // what 32-bit programs see
    return mirror || std::ranges::find(shared, line) != shared.end();
  });
  std::ranges::sort(lines);
  return lines;
}

const Lines OwnKeys = {L"\\clsid\\{493e3910-bc83-443b-9017-f5b53db5f5c4}",
                       L"\\clsid\\{7cb72a76-cb0a-4641-bb4b-a0e740f7c33c}",
                       L"\\clsid\\{a828897a-0536-4b1c-a36d-1cba3f91a7b4}",
                       L"\\interface\\{5114ed1b-a365-4a22-b49a-1a7b75f4e9cc}",
                       L"\\interface\\{5a9d6d27-b2ce-4470-a6d0-1cb474b13702}",
                       L"\\interface\\{9bc3aeb9-1c66-41ab-a292-b2ba700a26f4}",
                       L"\\orvane.clspainteffects",
                       L"\\orvane.clsquickgdi",
                       L"\\orvane.contextmenuhandler",
                       L"\\typelib\\{2b44f79d-6ecf-4c3a-ba26-36fb70600b70}"};

/// The topmost keys that are in the second list alone.
Lines Added(const Lines& before, const Lines& after) {
  Lines added;
  std::ranges::set_difference(after, before, std::back_inserter(added));
  std::erase_if(added, [&, all = added](const std::wstring& key) {
    return std::ranges::binary_search(all, key.substr(0, key.rfind(L'\\')));
  });
  return added;
}

void ExpectExactly(HKEY hive, HKEY other, const std::function<HRESULT(bool install)>& install) {
  ASSERT_EQ(install(false), S_OK);
  const Lines before = Classes(hive);
  const Lines otherBefore = Classes(other);
  EXPECT_EQ(install(true), S_OK);
  EXPECT_EQ(Added(before, Classes(hive)), OwnKeys);
  EXPECT_TRUE(Classes(other) == otherBefore);
  const std::wstring server = L"CLSID\\" + std::wstring(ClassId) + L"\\InprocServer32";
  EXPECT_EQ(ValueOf(hive, server), LibraryPath());
  EXPECT_EQ(ValueOf(hive, server, L"ThreadingModel"), L"Apartment");
  const std::wstring typeLibrary = L"TypeLib\\{2B44F79D-6ECF-4C3A-BA26-36FB70600B70}";
  EXPECT_EQ(ValueOf(hive, typeLibrary + L"\\1.0\\0\\win64"), LibraryPath());
  EXPECT_EQ(ValueOf(hive, L"Interface\\{5114ED1B-A365-4A22-B49A-1A7B75F4E9CC}"), L"_clsQuickGDI");

  EXPECT_EQ(install(false), S_OK);
  EXPECT_TRUE(Classes(hive) == before);
  EXPECT_EQ(install(false), S_OK) << "nothing to remove is no failure";
}

TEST(Registration, WritesAndRemovesExactlyItsOwnKeys) {
  const Library library;
  ExpectExactly(HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, [&](bool install) {
    return library.Call(install ? "DllRegisterServer" : "DllUnregisterServer");
  });
  ASSERT_EQ(library.Call("DllRegisterServer"), S_OK);  // for the other tests
  const auto installFor = library.Export<DllInstall>("DllInstall");
  ExpectExactly(HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE,
                [&](bool install) { return installFor(install, install ? L"user" : L"USER"); });
  EXPECT_EQ(installFor(true, L"everybody"), E_INVALIDARG);
}

}  // namespace
}  // namespace orvane::host
