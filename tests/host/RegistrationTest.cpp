#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "host/Com.h"
#include "host/Library.h"
#include "host/RegistryTree.h"
#include "support/Text.h"

namespace orvane::host {
namespace {

using Lines = std::vector<std::wstring>;

// Names of keys differ in case from system to system: "TypeLib" is "Typelib" on some.
Lines Folded(Lines lines) {
  for (std::wstring& line : lines) line = LowerCase(line);
  std::sort(lines.begin(), lines.end());
  return lines;
}

Lines Added(const Lines& before, const Lines& after) {
  Lines added;
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(added));
  return Folded(std::move(added));
}

constexpr wchar_t ClassId[] = L"{493E3910-BC83-443B-9017-F5B53DB5F5C4}";

constexpr wchar_t LibraryId[] = L"{2B44F79D-6ECF-4C3A-BA26-36FB70600B70}";

void AddClass(const std::wstring& id, const std::wstring& progId, const std::wstring& description,
              Lines& lines) {
  const std::wstring key = L"\\CLSID\\" + id;
  lines.insert(lines.end(),
               {key, key + L"@=" + description, key + L"\\InprocServer32",
                key + L"\\InprocServer32@=" + LibraryPath(),
                key + L"\\InprocServer32@ThreadingModel=Apartment", key + L"\\ProgID",
                key + L"\\ProgID@=" + progId, key + L"\\TypeLib", key + L"\\TypeLib@=" + LibraryId,
                L"\\" + progId, L"\\" + progId + L"@=" + description, L"\\" + progId + L"\\CLSID",
                L"\\" + progId + L"\\CLSID@=" + id});
}

void AddInterface(const std::wstring& id, const std::wstring& name, Lines& lines) {
  const std::wstring key = L"\\Interface\\" + id;
  lines.insert(lines.end(), {key, key + L"@=" + name, key + L"\\ProxyStubClsid32",
                             key + L"\\ProxyStubClsid32@={00020424-0000-0000-C000-000000000046}",
                             key + L"\\TypeLib", key + L"\\TypeLib@=" + LibraryId,
                             key + L"\\TypeLib@Version=1.0"});
}

Lines OwnKeys() {
  const std::wstring key = L"\\TypeLib\\" + std::wstring(LibraryId);
  const std::wstring version = key + L"\\1.0";
  Lines lines = {key,
                 version,
                 version + L"@=Orvane",
                 version + L"\\0",
                 version + L"\\0\\win64",
                 version + L"\\0\\win64@=" + LibraryPath(),
                 version + L"\\FLAGS",
                 version + L"\\FLAGS@=0"};
  AddClass(ClassId, L"Orvane.ContextMenuHandler", L"Orvane Context Menu", lines);
  AddClass(L"{7CB72A76-CB0A-4641-BB4B-A0E740F7C33C}", L"Orvane.clsQuickGDI", L"Orvane Quick GDI",
           lines);
  AddClass(L"{A828897A-0536-4B1C-A36D-1CBA3F91A7B4}", L"Orvane.clsPaintEffects",
           L"Orvane Paint Effects", lines);
  AddInterface(L"{5114ED1B-A365-4A22-B49A-1A7B75F4E9CC}", L"_clsQuickGDI", lines);
  AddInterface(L"{9BC3AEB9-1C66-41AB-A292-B2BA700A26F4}", L"_clsPaintEffects", lines);
  AddInterface(L"{5A9D6D27-B2CE-4470-A6D0-1CB474B13702}", L"_ContextMenuHandler", lines);
  return Folded(std::move(lines));
}

constexpr wchar_t Classes[] = L"Software\\Classes";

// Without the keys that all classes share: a user may have none of his own yet.
Lines UserClasses() {
  Lines lines = RegistryTree(HKEY_CURRENT_USER, Classes);
  std::erase(lines, L"");
  for (const wchar_t* shared : {L"\\CLSID", L"\\Interface", L"\\TypeLib"})
    std::erase(lines, shared);
  return lines;
}

// Without the mirror that the system shows to 32-bit programs.
Lines MachineClasses() {
  Lines lines = RegistryTree(HKEY_LOCAL_MACHINE, Classes);
  std::erase_if(lines, [](const std::wstring& line) {
    return Folded({line}).front().starts_with(L"\\wow6432node");
  });
  return lines;
}

TEST(Registration, MachineWideWritesAndRemovesExactlyItsOwnKeys) {
  const Library library;
  ASSERT_EQ(library.Call("DllUnregisterServer"), S_OK);
  const Lines before = MachineClasses();
  const Lines userBefore = RegistryTree(HKEY_CURRENT_USER, Classes);

  ASSERT_EQ(library.Call("DllRegisterServer"), S_OK);
  const Lines added = Added(before, MachineClasses());
  EXPECT_EQ(Added(OwnKeys(), added), Lines()) << "written beyond the own keys";
  EXPECT_EQ(Added(added, OwnKeys()), Lines()) << "not written";
  EXPECT_EQ(RegistryTree(HKEY_CURRENT_USER, Classes), userBefore);

  ASSERT_EQ(library.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(MachineClasses(), before);
  EXPECT_EQ(library.Call("DllUnregisterServer"), S_OK) << "nothing to remove is no failure";
  ASSERT_EQ(library.Call("DllRegisterServer"), S_OK);  // for the other tests
}

TEST(Registration, PerUserLeavesTheMachineAlone) {
  const Library library;
  const std::wstring own = std::wstring(Classes) + L"\\CLSID\\" + ClassId;
  const Lines machine = RegistryTree(HKEY_LOCAL_MACHINE, own);
  const Lines before = UserClasses();

  ASSERT_EQ(library.Install(true, L"user"), S_OK);
  EXPECT_EQ(Added(before, UserClasses()), OwnKeys());
  EXPECT_EQ(RegistryTree(HKEY_LOCAL_MACHINE, own), machine);

  ASSERT_EQ(library.Install(false, L"USER"), S_OK);
  EXPECT_EQ(UserClasses(), before);
}

TEST(Registration, RefusesAnUnknownInstallOption) {
  EXPECT_EQ(Library().Install(true, L"everybody"), E_INVALIDARG);
}

}  // namespace
}  // namespace orvane::host
