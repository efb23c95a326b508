#pragma once

#include <windows.h>

#include <ocidl.h>
#include <shlobj.h>
#include <wrl/client.h>

#include <atomic>
#include <optional>

#include "server/Automation.h"
#include "server/AutomationInterfaces.h"
#include "server/ClassFactory.h"
#include "server/Guarded.h"
#include "server/Guid.h"
#include "server/Module.h"
#include "server/ThreadBound.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane::server {

/// The COM object that the shell holds: checks what the shell hands over, turns it into the
/// handler's types and keeps exceptions in. Lives in the apartment that made it.
class ComContextMenuHandler final : private ThreadBound,
                                    public IShellExtInit,
                                    public IContextMenu3,
                                    public IObjectWithSite,
                                    public Automation<IContextMenuHandler, IidContextMenuHandler> {
 public:
  /// A new object with a reference count of 1. One for a script takes no site: some script engines
  /// make no object that would take theirs.
  static IUnknown* Create(ClassFactory::For whom);

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

  /// Whatever the menu is shown in; its top-level browser shows folders "in this window".
  HRESULT STDMETHODCALLTYPE SetSite(IUnknown* site) noexcept override;
  HRESULT STDMETHODCALLTYPE GetSite(REFIID iid, void** site) noexcept override;

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
  explicit ComContextMenuHandler(ClassFactory::For whom) : m_for(whom) {}
  ~ComContextMenuHandler() override = default;

  /// Runs the body of a method, keeps in what it throws, and keeps the object: data objects, boxes
  /// and dialogs run messages, in which a host may let go of it.
  template <class Body>
  HRESULT Serve(HRESULT otherwise, const Body& body) noexcept {
    const Microsoft::WRL::ComPtr<IContextMenu3> alive(this);
    return Guarded(otherwise, body);
  }

  std::optional<ModuleLock> m_lock{std::in_place};  // until the last release
  ContextMenuHandler m_handler{Globals()};
  Microsoft::WRL::ComPtr<IUnknown> m_site;
  const ClassFactory::For m_for;
  std::atomic<ULONG> m_references = 1;
};

}  // namespace orvane::server
