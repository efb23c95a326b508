#pragma once

#include <windows.h>

#include <oaidl.h>

namespace orvane::server {

/// The type information of one of our interfaces, from the type library in the DLL; loaded when it
/// is first asked for, since the shell never asks.
class TypeInfo {
 public:
  explicit TypeInfo(const IID& iid) : m_iid(iid) {}
  ~TypeInfo() {
    if (m_info) m_info->Release();
  }
  TypeInfo(const TypeInfo&) = delete;
  TypeInfo& operator=(const TypeInfo&) = delete;

  /// Borrowed; null, with the reason in `result`, when the library cannot be loaded.
  ITypeInfo* Get(HRESULT& result);

 private:
  const IID& m_iid;
  ITypeInfo* m_info = nullptr;
};

/// The IDispatch half of a dual interface: names and calls by the type library.
template <class Interface, const IID& iid>
class Automation : public Interface {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
    if (!info) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    HRESULT result = S_OK;
    *info = m_typeInfo.Get(result);
    if (*info) (*info)->AddRef();
    return result;
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) noexcept override {
    if (!names || !ids) return E_POINTER;
    HRESULT result = S_OK;
    ITypeInfo* info = m_typeInfo.Get(result);
    return info ? DispGetIDsOfNames(info, names, count, ids) : result;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* answer, EXCEPINFO* exception,
                                   UINT* argument) noexcept override {
    HRESULT result = S_OK;
    ITypeInfo* info = m_typeInfo.Get(result);
    return info ? info->Invoke(static_cast<Interface*>(this), id, flags, parameters, answer,
                               exception, argument)
                : result;
  }

 private:
  TypeInfo m_typeInfo{iid};
};

}  // namespace orvane::server
