#include "server/ComContextMenuHandler.h"

#include <wrl/client.h>

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "server/Guarded.h"
#include "server/InvokeRecord.h"
#include "win32/DataObject.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"
#include "windowing/MenuMessages.h"

namespace orvane::server {
namespace {

// The low 32 bits of an address or a key, for the log.
std::int32_t Number(const void* address) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(address));
}

}  // namespace
IUnknown* ComContextMenuHandler::Create() {
  return static_cast<IShellExtInit*>(new ComContextMenuHandler);
}

HRESULT ComContextMenuHandler::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == IID_IUnknown || iid == IID_IShellExtInit) {
    *object = static_cast<IShellExtInit*>(this);
  } else if (iid == IID_IContextMenu || iid == IID_IContextMenu2 || iid == IID_IContextMenu3) {
    *object = static_cast<IContextMenu3*>(this);
  } else if (iid == IID_IDispatch || iid == IidContextMenuHandler) {
    *object = static_cast<IContextMenuHandler*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ComContextMenuHandler::AddRef() noexcept {
  return ++m_references;
}

ULONG ComContextMenuHandler::Release() noexcept {
  const ULONG left = --m_references;
  if (left == 0) delete this;
  return left;
}

HRESULT ComContextMenuHandler::Initialize(PCIDLIST_ABSOLUTE folder, IDataObject* selection,
                                          HKEY progId) noexcept {
  return Guarded(S_OK, [&] {
    std::shared_ptr<DataObject> object;
    if (selection) object = std::make_shared<win32::DataObject>(selection);
    return m_handler.IShellExtInit_Initialize(win32::CopyOf(folder), std::move(object),
                                              Number(progId));
  });
}

HRESULT ComContextMenuHandler::QueryContextMenu(HMENU menu, UINT index, UINT first, UINT last,
                                                UINT flags) noexcept {
  if (!menu) return E_INVALIDARG;
  return Guarded(S_OK, [&] {
    return m_handler.IContextMenu_QueryContextMenuEx(
        win32::FromNative<MenuHandle>(menu), static_cast<std::int32_t>(index),
        static_cast<std::int32_t>(first), static_cast<std::int32_t>(last), flags);
  });
}

HRESULT ComContextMenuHandler::InvokeCommand(CMINVOKECOMMANDINFO* record) noexcept {
  if (!record) return E_POINTER;
  // Dialogs run messages: a host that closes its window meanwhile may let go of the handler.
  const Microsoft::WRL::ComPtr<IContextMenu3> alive(this);
  return Guarded(S_OK, [&]() -> HRESULT {
    const auto request = ReadInvokeRecord(*record, m_thread.Globals().codePage);
    return request ? m_handler.IContextMenu_InvokeCommand(*request) : E_INVALIDARG;
  });
}

HRESULT ComContextMenuHandler::GetCommandString(UINT_PTR offset, UINT what, UINT*, CHAR* text,
                                                UINT size) noexcept {
  return Guarded(S_OK, [&] {
    const CommandText answer =
        m_handler.IContextMenu_GetCommandString({.idCmd = static_cast<std::int32_t>(offset),
                                                 .uFlags = what,
                                                 .pszName = Number(text),
                                                 .cchMax = size});
    if (!text) return S_OK;
    if (answer.kind == CommandText::Kind::Ansi) {
      CopyBounded(answer.text, m_thread.Globals().codePage, std::span(text, size));
    } else if (answer.kind == CommandText::Kind::Wide) {
      CopyBounded(answer.text, std::span(reinterpret_cast<char16_t*>(text), size));
    }
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::HandleMenuMsg(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  windowing::HandleMenuMsg(message, wParam, lParam);
  return S_OK;
}

HRESULT ComContextMenuHandler::HandleMenuMsg2(UINT message, WPARAM wParam, LPARAM lParam,
                                              LRESULT* result) noexcept {
  if (result) *result = 0;
  return Guarded(S_OK, [&] {
    windowing::HandleMenuMsg2(m_handler.Menu(), message, wParam, lParam);
    return S_OK;
  });
}

}  // namespace orvane::server
