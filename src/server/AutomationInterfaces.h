#pragma once

#include <windows.h>

#include <oaidl.h>

namespace orvane::server {

// The dual interfaces of the type library, in the order of orvane.idl; both are changed together.

struct IQuickGdi : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_TargethDC(LONG* hDC) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE put_TargethDC(LONG hDC) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE DrawRect(LONG X1, LONG Y1, LONG X2, LONG Y2) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetPen(LONG nWidth, LONG Clr, LONG* hPen) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE hPrint(LONG x, LONG y, BSTR szText, LONG colour, LONG right,
                                           LONG bottom, LONG* height) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE ThreedBox(LONG X1, LONG Y1, LONG X2, LONG Y2,
                                              VARIANT_BOOL Sunken) noexcept = 0;
};

struct IPaintEffects : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE PaintTransparentDC(LONG hdcDest, LONG xDest, LONG yDest,
                                                       LONG Width, LONG Height, LONG hdcSrc,
                                                       LONG xSrc, LONG ySrc, LONG clrMask,
                                                       LONG hPal) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE PaintTransparentStdPic(LONG hdcDest, LONG xDest, LONG yDest,
                                                           LONG Width, LONG Height,
                                                           IDispatch* picSource, LONG xSrc,
                                                           LONG ySrc, LONG clrMask,
                                                           LONG hPal) noexcept = 0;
};

struct IContextMenuHandler : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE IContextMenu_QueryContextMenuEx(LONG hMenu, LONG indexMenu,
                                                                    LONG idCmdFirst, LONG idCmdLast,
                                                                    LONG uFlags,
                                                                    LONG* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateMenu(VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRootExplorerWindow(LONG hWnd, LONG* found) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRootOfficeWindow(LONG hWnd, LONG* found) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE IsIE(LONG hWnd, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CanInsertMenuCommand(VARIANT_BOOL bShowError,
                                                         VARIANT_BOOL bInternal,
                                                         VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE OwnerDrawMenu_GetCaption(LONG lId, BSTR* caption) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE OwnerDrawMenu_HasBitmap(LONG lId, LONG* hBitmap) noexcept = 0;
};

}  // namespace orvane::server
