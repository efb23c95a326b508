#include "host/FileDataObject.h"

#include <cstring>

namespace orvane::host {
namespace {

/// Stands for the medium: ReleaseStgMedium releases it in place of freeing the memory.
class MediumOwner final : public IUnknown {
 public:
  explicit MediumOwner(FileDataObject* object) : m_object(object) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --m_references;
    if (left == 0) {
      ++m_object->released;
      delete this;
    }
    return left;
  }

 private:
  ComPtr<FileDataObject> m_object;
  ULONG m_references = 1;
};

}  // namespace

ComPtr<FileDataObject> FileDataObject::Of(const std::vector<std::wstring>& paths) {
  std::wstring names;
  for (const std::wstring& path : paths) names.append(path).push_back(L'\0');
  names.push_back(L'\0');
  ComPtr<FileDataObject> object;
  object.Attach(new FileDataObject);
  object->m_files = GlobalAlloc(GMEM_MOVEABLE, sizeof(DROPFILES) + names.size() * sizeof(wchar_t));
  auto* drop = static_cast<DROPFILES*>(GlobalLock(object->m_files));
  *drop = {.pFiles = sizeof(DROPFILES), .pt = {}, .fNC = FALSE, .fWide = TRUE};
  std::memcpy(drop + 1, names.data(), names.size() * sizeof(wchar_t));
  GlobalUnlock(object->m_files);
  return object;
}

ComPtr<FileDataObject> FileDataObject::Failing(HRESULT failure) {
  ComPtr<FileDataObject> object;
  object.Attach(new FileDataObject);
  object->m_failure = failure;
  return object;
}

ComPtr<FileDataObject> FileDataObject::Unlockable() {
  ComPtr<FileDataObject> object;
  object.Attach(new FileDataObject);
  object->m_files = GlobalAlloc(GMEM_MOVEABLE, 0);  // a discarded block: GlobalLock answers null
  return object;
}

FileDataObject::~FileDataObject() {
  GlobalFree(m_files);
}

HRESULT FileDataObject::QueryInterface(REFIID iid, void** object) {
  *object = iid == IID_IUnknown || iid == IID_IDataObject ? this : nullptr;
  if (!*object) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG FileDataObject::Release() {
  const ULONG left = --m_references;
  if (left == 0) delete this;
  return left;
}

HRESULT FileDataObject::QueryGetData(FORMATETC* format) {
  return format->cfFormat == CF_HDROP ? S_OK : DV_E_FORMATETC;
}

HRESULT FileDataObject::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (format->cfFormat != CF_HDROP) return DV_E_FORMATETC;
  if (FAILED(m_failure)) return m_failure;
  ++given;
  medium->tymed = TYMED_HGLOBAL;
  medium->hGlobal = m_files;
  medium->pUnkForRelease = new MediumOwner(this);
  return S_OK;
}

}  // namespace orvane::host
