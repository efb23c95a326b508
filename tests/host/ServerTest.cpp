#include <gtest/gtest.h>

#include "host/Com.h"
#include "host/Library.h"
#include "host/Scene.h"

namespace orvane::host {
namespace {

using GetClassObject = HRESULT WINAPI(const CLSID&, const IID&, void**);
using CanUnloadNow = HRESULT WINAPI();

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
  object = this;
  EXPECT_EQ(get(ClsidContextMenuHandler, IID_IContextMenu, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(get(ClsidContextMenuHandler, IID_IClassFactory, nullptr), E_POINTER);

  const ComPtr<IClassFactory> factory = Factory();
  object = this;
  EXPECT_EQ(factory->CreateInstance(factory.Get(), IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IShellView, &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Server, HandlerIsOneObjectBehindAllItsInterfaces) {
  ComPtr<IUnknown> object;
  ASSERT_EQ(Factory()->CreateInstance(nullptr, IID_IUnknown,
                                      reinterpret_cast<void**>(object.GetAddressOf())),
            S_OK);
  for (const IID& iid :
       {IID_IUnknown, IID_IShellExtInit, IID_IContextMenu, IID_IContextMenu2, IID_IContextMenu3}) {
    ComPtr<IUnknown> face, identity;
    ASSERT_EQ(object->QueryInterface(iid, reinterpret_cast<void**>(face.GetAddressOf())), S_OK);
    ASSERT_EQ(face->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(identity.GetAddressOf())),
              S_OK);
    EXPECT_EQ(identity, object);
  }
  EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Server, StaysLoadedWhileSomebodyNeedsIt) {
  EXPECT_TRUE(CanUnload());
  ComPtr<IClassFactory> factory = Factory();
  EXPECT_FALSE(CanUnload());
  ComPtr<IUnknown> object;
  factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(object.GetAddressOf()));
  factory->LockServer(TRUE);
  object.Reset();
  EXPECT_FALSE(CanUnload());
  factory->LockServer(FALSE);
  factory.Reset();
  EXPECT_TRUE(CanUnload());
}

TEST(ServerLifetime, ComReallyUnloadsIt) {
  const Apartment apartment;
  ASSERT_EQ(GetModuleHandleW(L"orvane.dll"), nullptr) << "another test still holds it";
  {
    const Scene scene;
    RightClick click(scene.Folder(), nullptr);
    ASSERT_EQ(click.initialized, S_OK);
    click.Query();
    CoFreeUnusedLibrariesEx(0, 0);
    EXPECT_NE(GetModuleHandleW(L"orvane.dll"), nullptr);
  }
  CoFreeUnusedLibrariesEx(0, 0);
  EXPECT_EQ(GetModuleHandleW(L"orvane.dll"), nullptr);
}

}  // namespace
}  // namespace orvane::host
