#pragma once

#include <string>
#include <vector>

#include "host/Com.h"

namespace orvane::host {

/// A data object with a CF_HDROP of our own making, that counts how often its medium was released.
class FileDataObject final : public IDataObject {
 public:
  static ComPtr<FileDataObject> Of(const std::vector<std::wstring>& paths);
  /// Answers GetData with a failure.
  static ComPtr<FileDataObject> Failing(HRESULT failure);
  /// Hands out a medium that cannot be locked.
  static ComPtr<FileDataObject> Unlockable();

  int given = 0;
  int released = 0;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;

  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

 private:
  FileDataObject() = default;
  ~FileDataObject();

  ULONG m_references = 1;
  HRESULT m_failure = S_OK;
  HGLOBAL m_files = nullptr;
};

}  // namespace orvane::host
