// A handler that does nothing but add one entry: what any other one costs at least.

#include <windows.h>

#include <shlobj.h>

#include <new>

namespace {

class EmptyHandler final : public IShellExtInit, public IContextMenu {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (iid == IID_IShellExtInit || iid == IID_IUnknown)
      *object = static_cast<IShellExtInit*>(this);
    else if (iid == IID_IContextMenu)
      *object = static_cast<IContextMenu*>(this);
    else
      return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --m_references;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE Initialize(PCIDLIST_ABSOLUTE, IDataObject*, HKEY) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE QueryContextMenu(HMENU menu, UINT index, UINT first, UINT,
                                             UINT) override {
    InsertMenuW(menu, index, MF_BYPOSITION, first, L"Empty");
    return 1;
  }
  HRESULT STDMETHODCALLTYPE InvokeCommand(CMINVOKECOMMANDINFO*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetCommandString(UINT_PTR, UINT, UINT*, CHAR*, UINT) override {
    return E_NOTIMPL;
  }

 private:
  ~EmptyHandler() = default;
  ULONG m_references = 1;
};

class Factory final : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
    auto* handler = new (std::nothrow) EmptyHandler;
    if (!handler) return E_OUTOFMEMORY;
    const HRESULT result = handler->QueryInterface(iid, object);
    static_cast<IShellExtInit*>(handler)->Release();
    return result;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

Factory factory;

}  // namespace

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE
    DllGetClassObject(REFCLSID, REFIID iid, void** object) {
  return factory.QueryInterface(iid, object);
}
