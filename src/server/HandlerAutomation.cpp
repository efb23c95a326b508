// The handler's own methods as scripts see them.

#include <windows.h>

#include <oleauto.h>

#include "server/ComContextMenuHandler.h"

namespace orvane::server {
namespace {

VARIANT_BOOL Boolean(bool value) {
  return value ? VARIANT_TRUE : VARIANT_FALSE;
}

}  // namespace

HRESULT ComContextMenuHandler::IContextMenu_QueryContextMenuEx(LONG hMenu, LONG indexMenu,
                                                               LONG idCmdFirst, LONG idCmdLast,
                                                               LONG uFlags, LONG* result) noexcept {
  if (!result) return E_POINTER;
  return Serve(E_FAIL, [&] {
    *result = m_handler.IContextMenu_QueryContextMenuEx(ToHandle<MenuHandle>(hMenu), indexMenu,
                                                        idCmdFirst, idCmdLast,
                                                        static_cast<std::uint32_t>(uFlags));
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::CreateMenu(VARIANT_BOOL* result) noexcept {
  if (!result) return E_POINTER;
  *result = VARIANT_FALSE;
  return Serve(E_FAIL, [&] {
    *result = Boolean(m_handler.CreateMenu());
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::GetRootExplorerWindow(LONG hWnd, LONG* found) noexcept {
  if (!found) return E_POINTER;
  *found = 0;
  return Serve(E_FAIL, [&] {
    *found = ToNumber(m_handler.GetRootExplorerWindow(ToHandle<WindowHandle>(hWnd)));
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::GetRootOfficeWindow(LONG hWnd, LONG* found) noexcept {
  if (!found) return E_POINTER;
  *found = 0;
  return Serve(E_FAIL, [&] {
    *found = ToNumber(m_handler.GetRootOfficeWindow(ToHandle<WindowHandle>(hWnd)));
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::IsIE(LONG hWnd, VARIANT_BOOL* result) noexcept {
  if (!result) return E_POINTER;
  *result = VARIANT_FALSE;
  return Serve(E_FAIL, [&] {
    *result = Boolean(m_handler.IsIE(ToHandle<WindowHandle>(hWnd)));
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::CanInsertMenuCommand(VARIANT_BOOL bShowError, VARIANT_BOOL bInternal,
                                                    VARIANT_BOOL* result) noexcept {
  if (!result) return E_POINTER;
  *result = Boolean(
      m_handler.CanInsertMenuCommand(bShowError != VARIANT_FALSE, bInternal != VARIANT_FALSE));
  return S_OK;
}

HRESULT ComContextMenuHandler::OwnerDrawMenu_GetCaption(LONG lId, BSTR* caption) noexcept {
  if (!caption) return E_POINTER;
  *caption = nullptr;
  return Serve(E_FAIL, [&]() -> HRESULT {
    const std::wstring text = m_handler.OwnerDrawMenu_GetCaption(lId);
    *caption = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *caption ? S_OK : E_OUTOFMEMORY;
  });
}

HRESULT ComContextMenuHandler::OwnerDrawMenu_HasBitmap(LONG lId, LONG* hBitmap) noexcept {
  if (!hBitmap) return E_POINTER;
  *hBitmap = 0;
  return Serve(E_FAIL, [&] {
    *hBitmap = ToNumber(m_handler.OwnerDrawMenu_HasBitmap(lId));
    return S_OK;
  });
}

}  // namespace orvane::server
