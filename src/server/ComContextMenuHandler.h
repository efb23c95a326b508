#pragma once

#include <windows.h>

#include <shlobj.h>

#include <atomic>

#include "server/Automation.h"
#include "server/AutomationInterfaces.h"
#include "server/Guid.h"
#include "server/Module.h"
#include "server/ThreadModule.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane::server {

/// The COM object that the shell holds: checks what the shell hands over, turns it into the
/// handler's types and keeps exceptions in. Lives in the apartment that made it.
class ComContextMenuHandler final : public IShellExtInit,
                                    public IContextMenu3,
                                    public Automation<IContextMenuHandler, IidContextMenuHandler> {
 public:
  /// A new object with a reference count of 1.
  static IUnknown* Create();

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  HRESULT STDMETHODCALLTYPE Initialize(PCIDLIST_ABSOLUTE folder, IDataObject* selection,
                                       HKEY progId) noexcept override;

  HRESULT STDMETHODCALLTYPE QueryContextMenu(HMENU menu, UINT index, UINT first, UINT last,
                                             UINT flags) noexcept override;
  HRESULT STDMETHODCALLTYPE InvokeCommand(CMINVOKECOMMANDINFO* record) noexcept override;
  HRESULT STDMETHODCALLTYPE GetCommandString(UINT_PTR offset, UINT what, UINT* reserved, CHAR* text,
                                             UINT size) noexcept override;
  HRESULT STDMETHODCALLTYPE HandleMenuMsg(UINT message, WPARAM wParam,
                                          LPARAM lParam) noexcept override;
  HRESULT STDMETHODCALLTYPE HandleMenuMsg2(UINT message, WPARAM wParam, LPARAM lParam,
                                           LRESULT* result) noexcept override;

  // For scripts: the handler's own methods.
  HRESULT STDMETHODCALLTYPE IContextMenu_QueryContextMenuEx(LONG hMenu, LONG indexMenu,
                                                            LONG idCmdFirst, LONG idCmdLast,
                                                            LONG uFlags,
                                                            LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CreateMenu(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetRootExplorerWindow(LONG hWnd, LONG* found) noexcept override;
  HRESULT STDMETHODCALLTYPE GetRootOfficeWindow(LONG hWnd, LONG* found) noexcept override;
  HRESULT STDMETHODCALLTYPE IsIE(LONG hWnd, VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CanInsertMenuCommand(VARIANT_BOOL bShowError, VARIANT_BOOL bInternal,
                                                 VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE OwnerDrawMenu_GetCaption(LONG lId, BSTR* caption) noexcept override;
  HRESULT STDMETHODCALLTYPE OwnerDrawMenu_HasBitmap(LONG lId, LONG* hBitmap) noexcept override;

 private:
  ComContextMenuHandler() = default;
  ~ComContextMenuHandler() = default;

  ModuleLock m_lock;
  ThreadModule::Use m_thread;
  ContextMenuHandler m_handler{m_thread.Globals()};
  std::atomic<ULONG> m_references = 1;
};

}  // namespace orvane::server
