#include "designerapp/Scale.h"

#include <cwchar>

namespace orvane::designerapp {
namespace {

UINT SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = screen ? GetDeviceCaps(screen, LOGPIXELSY) : USER_DEFAULT_SCREEN_DPI;
  if (screen) ReleaseDC(nullptr, screen);
  return static_cast<UINT>(dpi);
}

/// Windows before 10 has no such function, and one resolution for all screens.
UINT (*WindowDpi())(HWND) {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  return reinterpret_cast<UINT (*)(HWND)>(
      reinterpret_cast<void*>(user ? GetProcAddress(user, "GetDpiForWindow") : nullptr));
}

}  // namespace

UINT DpiOf(HWND window) {
  const auto ask = WindowDpi();
  const UINT dpi = ask ? ask(window) : 0;
  return dpi ? dpi : SystemDpi();
}

UniqueFont MessageFont(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return nullptr;
  LOGFONTW font = metrics.lfMessageFont;
  font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dpi), static_cast<int>(SystemDpi()));
  return UniqueFont(CreateFontIndirectW(&font));
}

SIZE SizeOfText(HWND window, HFONT font, const wchar_t* text) {
  SIZE size{};
  const HDC context = GetDC(window);
  if (!context) return size;
  const HGDIOBJ before = SelectObject(context, font);
  GetTextExtentPoint32W(context, text, static_cast<int>(wcslen(text)), &size);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return size;
}

}  // namespace orvane::designerapp
