// The DLL's entry points.

#include <windows.h>

#include <olectl.h>

#include <new>

#include "server/ClassFactory.h"
#include "server/ComContextMenuHandler.h"
#include "server/DrawingClasses.h"
#include "server/Guarded.h"
#include "server/Guid.h"
#include "server/Module.h"
#include "server/Registration.h"

using namespace orvane::server;

namespace {

ClassFactory::Create CreatorOf(REFCLSID clsid) {
  if (clsid == ClsidContextMenuHandler) return ComContextMenuHandler::Create;
  if (clsid == ClsidQuickGdi) return CreateQuickGdi;
  if (clsid == ClsidPaintEffects) return CreatePaintEffects;
  return nullptr;
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* processEnds) noexcept {
  if (reason == DLL_PROCESS_ATTACH) Module::Handle(module);
  if (reason == DLL_PROCESS_DETACH) Module::ProcessEnds(processEnds != nullptr);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  const ClassFactory::Create create = CreatorOf(clsid);
  if (!create) return CLASS_E_CLASSNOTAVAILABLE;
  auto* factory = new (std::nothrow) ClassFactory(create);
  if (!factory) return E_OUTOFMEMORY;
  const HRESULT result = factory->QueryInterface(iid, object);
  factory->Release();
  return result;
}

STDAPI DllCanUnloadNow() noexcept {
  return Module::InUse() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() noexcept {
  return Guarded(SELFREG_E_CLASS, [] { return Register(Scope::Machine); });
}

STDAPI DllUnregisterServer() noexcept {
  return Guarded(SELFREG_E_CLASS, [] { return Unregister(Scope::Machine); });
}

/// `regsvr32 /n /i:user`: registration for the current user alone, without administrator rights.
STDAPI DllInstall(BOOL install, PCWSTR commandLine) noexcept {
  const bool user = commandLine && lstrcmpiW(commandLine, L"user") == 0;
  if (!user && commandLine && *commandLine) return E_INVALIDARG;
  const Scope scope = user ? Scope::CurrentUser : Scope::Machine;
  return Guarded(SELFREG_E_CLASS, [&] { return install ? Register(scope) : Unregister(scope); });
}
