#pragma once

#include <unknwn.h>

#include <atomic>

#include "server/Module.h"

namespace orvane::server {

/// Makes the objects of one class: `Create` makes one, with a reference count of 1.
class ClassFactory final : public IClassFactory {
 public:
  using Create = IUnknown* (*)();

  explicit ClassFactory(Create create) : m_create(create) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid,
                                           void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

 private:
  ~ClassFactory() = default;

  ModuleLock m_lock;
  Create m_create;
  std::atomic<ULONG> m_references = 1;
};

}  // namespace orvane::server
