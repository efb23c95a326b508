#include <gtest/gtest.h>

#include <algorithm>

#include "host/Com.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"

namespace orvane::host {
namespace {

using GetClassObject = HRESULT WINAPI(const CLSID&, const IID&, void**);

class Server : public testing::Test {
 protected:
  ComPtr<IClassFactory> Factory() {
    ComPtr<IClassFactory> factory;
    library.Export<GetClassObject>("DllGetClassObject")(
        ClsidContextMenuHandler, IID_IClassFactory,
        reinterpret_cast<void**>(factory.GetAddressOf()));
    return factory;
  }
  bool CanUnload() { return library.Call("DllCanUnloadNow") == S_OK; }

  Apartment apartment;
  Library library;
};

TEST_F(Server, RefusesWhatItDoesNotServe) {
  const auto get = library.Export<GetClassObject>("DllGetClassObject");
  void* object = this;
  EXPECT_EQ(get(CLSID_ShellLink, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(get(ClsidContextMenuHandler, IID_IContextMenu, &object), E_NOINTERFACE);
  EXPECT_EQ(get(ClsidContextMenuHandler, IID_IClassFactory, nullptr), E_POINTER);

  const ComPtr<IClassFactory> factory = Factory();
  object = this;
  EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  object = this;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IShellView, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Server, StaysLoadedWhileSomebodyNeedsIt) {
  EXPECT_TRUE(CanUnload());
  ComPtr<IClassFactory> factory = Factory();
  EXPECT_FALSE(CanUnload());
  ComPtr<IUnknown> object;
  factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.GetAddressOf()));
  for (const IID& iid : {IID_IShellExtInit, IID_IContextMenu, IID_IContextMenu2}) {
    ComPtr<IUnknown> face;
    EXPECT_EQ(object->QueryInterface(iid, reinterpret_cast<void**>(face.GetAddressOf())), S_OK);
  }
  EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  factory->LockServer(TRUE);
  factory.Reset();
  EXPECT_FALSE(CanUnload());
  object.Reset();
  EXPECT_FALSE(CanUnload());
  Factory()->LockServer(FALSE);
  EXPECT_TRUE(CanUnload());
}

TEST(ServerLifetime, TwoHundredCyclesOfUseAndUnloadHoldNothing) {
  const Apartment apartment;
  Scene scene;
  scene.Set(L"ShellShowIcons", 3);
  const auto cycle = [&](int times) {
    for (int i = 0; i < times; ++i) {
      EXPECT_GT(RightClick(scene.Folder(), nullptr).Query(), 0);
      CoFreeUnusedLibrariesEx(0, 0);
    }
    return LeakCount::Now();
  };
  const LeakCount before = cycle(5);
  EXPECT_EQ(cycle(200), before);
  EXPECT_NE(GetModuleHandleW(L"orvane.dll"), nullptr) << "it pins itself";
}

// What every Windows has; a compiler's run-time DLL would have to be shipped along.
constexpr const char* SystemDlls[] = {"advapi32.dll", "comctl32.dll", "gdi32.dll",   "kernel32.dll",
                                      "msvcrt.dll",   "ntdll.dll",    "ole32.dll",   "oleaut32.dll",
                                      "psapi.dll",    "shell32.dll",  "shlwapi.dll", "user32.dll",
                                      "version.dll",  "ws2_32.dll"};

TEST_F(Server, ImportsOnlySystemDlls) {
  const auto* base = reinterpret_cast<const char*>(library.Module());
  const auto* start = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(base + start->e_lfanew);
  const auto& table = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* import =
      reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table.VirtualAddress);
  ASSERT_NE(import->Name, 0u);
  for (; import->Name != 0; ++import) {
    const char* name = base + import->Name;
    const auto is = [name](const char* known) { return lstrcmpiA(known, name) == 0; };
    EXPECT_TRUE(std::ranges::any_of(SystemDlls, is)) << name;
  }
}

TEST_F(Server, CarriesItsVersionResourceAndManifest) {
  const std::wstring path = LibraryPath();
  std::vector<char> info(GetFileVersionInfoSizeW(path.c_str(), nullptr));
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
  void* text = nullptr;
  UINT length = 0;
  const wchar_t* name = L"\\StringFileInfo\\040904E4\\ProductName";
  ASSERT_TRUE(VerQueryValueW(info.data(), name, &text, &length));
  EXPECT_STREQ(static_cast<const wchar_t*>(text), L"Orvane");
  EXPECT_TRUE(FindResourceW(library.Module(), MAKEINTRESOURCEW(2), RT_MANIFEST));
}

}  // namespace
}  // namespace orvane::host
