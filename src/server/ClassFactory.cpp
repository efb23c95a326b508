#include "server/ClassFactory.h"

#include "server/Guarded.h"

namespace orvane::server {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == __uuidof(IClassFactoryEx))
    m_for = For::Script;
  else if (iid != IID_IUnknown && iid != IID_IClassFactory)
    return E_NOINTERFACE;
  AddRef();
  *object = static_cast<IClassFactoryEx*>(this);
  return S_OK;
}

ULONG ClassFactory::AddRef() noexcept {
  return ++m_references;
}

ULONG ClassFactory::Release() noexcept {
  const ULONG left = --m_references;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) noexcept {
  return Make(m_for, outer, iid, object);
}

HRESULT ClassFactory::CreateInstanceWithContext(IUnknown*, IUnknown* outer, REFIID iid,
                                                void** object) noexcept {
  return Make(For::Script, outer, iid, object);
}

HRESULT ClassFactory::Make(For whom, IUnknown* outer, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  return Guarded(E_FAIL, [&] {
    IUnknown* created = m_create(whom);
    const HRESULT result = created->QueryInterface(iid, object);
    created->Release();
    return result;
  });
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  lock ? Module::Lock() : Module::Unlock();
  return S_OK;
}

}  // namespace orvane::server
