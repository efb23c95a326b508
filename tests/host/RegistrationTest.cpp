#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "host/Com.h"
#include "host/Library.h"
#include "host/RegistryTree.h"

namespace orvane::host {
namespace {

using Lines = std::vector<std::wstring>;

Lines Added(const Lines& before, const Lines& after) {
  Lines added;
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(added));
  return added;
}

constexpr wchar_t ClassId[] = L"{493E3910-BC83-443B-9017-F5B53DB5F5C4}";

Lines OwnKeys() {
  const std::wstring id = ClassId;
  const std::wstring key = L"\\CLSID\\" + id;
  Lines lines = {
      key,
      key + L"@=Orvane Context Menu",
      key + L"\\InprocServer32",
      key + L"\\InprocServer32@=" + LibraryPath(),
      key + L"\\InprocServer32@ThreadingModel=Apartment",
      key + L"\\ProgID",
      key + L"\\ProgID@=Orvane.ContextMenuHandler",
      L"\\Orvane.ContextMenuHandler",
      L"\\Orvane.ContextMenuHandler@=Orvane Context Menu",
      L"\\Orvane.ContextMenuHandler\\CLSID",
      L"\\Orvane.ContextMenuHandler\\CLSID@=" + id,
  };
  std::sort(lines.begin(), lines.end());
  return lines;
}

constexpr wchar_t Classes[] = L"Software\\Classes";

// Without the two keys that all classes share: a user may have none of his own yet.
Lines UserClasses() {
  Lines lines = RegistryTree(HKEY_CURRENT_USER, Classes);
  std::erase(lines, L"");
  std::erase(lines, L"\\CLSID");
  return lines;
}

TEST(Registration, MachineWideWritesAndRemovesExactlyItsOwnKeys) {
  const Library library;
  ASSERT_EQ(library.Call("DllUnregisterServer"), S_OK);
  const Lines before = RegistryTree(HKEY_LOCAL_MACHINE, Classes);
  const Lines userBefore = RegistryTree(HKEY_CURRENT_USER, Classes);

  ASSERT_EQ(library.Call("DllRegisterServer"), S_OK);
  EXPECT_EQ(Added(before, RegistryTree(HKEY_LOCAL_MACHINE, Classes)), OwnKeys());
  EXPECT_EQ(RegistryTree(HKEY_CURRENT_USER, Classes), userBefore);

  ASSERT_EQ(library.Call("DllUnregisterServer"), S_OK);
  EXPECT_EQ(RegistryTree(HKEY_LOCAL_MACHINE, Classes), before);
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

TEST(Registration, NamesTheClassByItsProgId) {
  const Apartment apartment;
  CLSID clsid{};
  ASSERT_EQ(CLSIDFromProgID(L"Orvane.ContextMenuHandler", &clsid), S_OK);
  EXPECT_EQ(clsid, ClsidContextMenuHandler);
}

}  // namespace
}  // namespace orvane::host
