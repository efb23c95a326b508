#pragma once

#include <windows.h>

#include <mshtmhst.h>

#include <atomic>

#include "server/Module.h"

namespace orvane::server {

/// Makes the objects of one class. Script engines are known by their asking for IClassFactoryEx,
/// whether they then create through it or, as Wine's VBScript does, as programs do.
class ClassFactory final : public IClassFactoryEx {
 public:
  enum class For { Program, Script };
  /// Makes one, with a reference count of 1.
  using Create = IUnknown* (*)(For);

  explicit ClassFactory(Create create) : m_create(create) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid,
                                           void** object) noexcept override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;
  HRESULT STDMETHODCALLTYPE CreateInstanceWithContext(IUnknown* context, IUnknown* outer,
                                                      REFIID iid, void** object) noexcept override;

 private:
  ~ClassFactory() = default;
  HRESULT Make(For whom, IUnknown* outer, REFIID iid, void** object) noexcept;

  ModuleLock m_lock;
  Create m_create;
  std::atomic<For> m_for = For::Program;
  std::atomic<ULONG> m_references = 1;
};

}  // namespace orvane::server
