#include "win32/Gdi.h"

#include <windows.h>

#include <commctrl.h>
#include <olectl.h>

#include "win32/NativeHandles.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's name for the start of this module

namespace orvane::win32 {
namespace {

constexpr DWORD FontPatience = 100;  // milliseconds

HDC Native(DeviceContext context) {
  return ToNative<HDC>(context);
}

/// SelectObject's two ways of saying no.
template <class Handle>
Handle SelectInto(DeviceContext context, Handle handle) {
  HGDIOBJ previous = SelectObject(Native(context), ToNative<HGDIOBJ>(handle));
  return previous == HGDI_ERROR ? Handle{} : FromNative<Handle>(previous);
}

template <class Handle>
void FreeObject(Handle handle) {
  DeleteObject(ToNative<HGDIOBJ>(handle));
}

std::optional<Colour> PaletteColour(PaletteHandle palette, UINT entry) {
  PALETTEENTRY found;
  if (GetPaletteEntries(ToNative<HPALETTE>(palette), entry, 1, &found) != 1) return std::nullopt;
  return Rgb(found.peRed, found.peGreen, found.peBlue);
}

}  // namespace

DeviceContext Gdi::CreateContext() {
  return FromNative<DeviceContext>(CreateCompatibleDC(nullptr));
}

void Gdi::FreeContext(DeviceContext context) {
  DeleteDC(Native(context));
}

DeviceContext Gdi::OpenScreen() {
  return FromNative<DeviceContext>(GetDC(nullptr));
}

void Gdi::CloseScreen(DeviceContext screen) {
  ReleaseDC(nullptr, Native(screen));
}

BitmapHandle Gdi::CreateCompatible(DeviceContext context, Size size) {
  // Windows answers a size of 0 with a stock bitmap that is nobody's to free.
  if (size.width < 1 || size.height < 1) return BitmapHandle::None;
  return FromNative<BitmapHandle>(CreateCompatibleBitmap(Native(context), size.width, size.height));
}

BitmapHandle Gdi::CreateShaped(const BitmapShape& shape) {
  if (shape.width < 1 || shape.height < 1) return BitmapHandle::None;
  const BITMAP description{.bmType = 0,
                           .bmWidth = shape.width,
                           .bmHeight = shape.height,
                           .bmWidthBytes = shape.bytesPerRow,
                           .bmPlanes = shape.planes,
                           .bmBitsPixel = shape.bitsPerPixel,
                           .bmBits = nullptr};
  return FromNative<BitmapHandle>(CreateBitmapIndirect(&description));
}

BitmapHandle Gdi::LoadMapped(std::uintptr_t module, std::int32_t resource, Colour from, Colour to) {
  auto* instance =
      module == 0 ? reinterpret_cast<HINSTANCE>(&__ImageBase) : reinterpret_cast<HINSTANCE>(module);
  COLORMAP map{from, to};
  return FromNative<BitmapHandle>(CreateMappedBitmap(instance, resource, 0, &map, 1));
}

std::optional<BitmapShape> Gdi::Describe(BitmapHandle bitmap) {
  auto* object = ToNative<HGDIOBJ>(bitmap);
  BITMAP found;
  if (GetObjectType(object) != OBJ_BITMAP || !GetObjectW(object, sizeof found, &found))
    return std::nullopt;
  return BitmapShape{found.bmWidth, found.bmHeight, found.bmWidthBytes, found.bmPlanes,
                     found.bmBitsPixel};
}

void Gdi::FreeBitmap(BitmapHandle bitmap) {
  FreeObject(bitmap);
}

BrushHandle Gdi::SolidBrush(Colour colour) {
  return FromNative<BrushHandle>(CreateSolidBrush(colour));
}

void Gdi::FreeBrush(BrushHandle brush) {
  FreeObject(brush);
}

PenHandle Gdi::SolidPen(std::int32_t width, Colour colour) {
  return FromNative<PenHandle>(CreatePen(PS_SOLID, width, colour));
}

void Gdi::FreePen(PenHandle pen) {
  FreeObject(pen);
}

FontHandle Gdi::DesktopFont() {
  DWORD_PTR font = 0;
  if (!SendMessageTimeoutW(GetDesktopWindow(), WM_GETFONT, 0, 0, SMTO_ABORTIFHUNG, FontPatience,
                           &font))
    return FontHandle::None;
  return FromNative<FontHandle>(reinterpret_cast<HFONT>(font));
}

FontHandle Gdi::MenuFont(std::int32_t dpi) {
  NONCLIENTMETRICSW metrics;
  metrics.cbSize = sizeof metrics;
  if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
    return FontHandle::None;
  const UniqueScreen screen(*this, OpenScreen());
  const int systemDpi = GetDeviceCaps(Native(screen.get()), LOGPIXELSY);
  LOGFONTW& font = metrics.lfMenuFont;
  if (systemDpi > 0) font.lfHeight = MulDiv(font.lfHeight, dpi, systemDpi);
  return FromNative<FontHandle>(CreateFontIndirectW(&font));
}

void Gdi::FreeFont(FontHandle font) {
  FreeObject(font);
}

PaletteHandle Gdi::DefaultPalette() {
  return FromNative<PaletteHandle>(GetStockObject(DEFAULT_PALETTE));
}

BitmapHandle Gdi::Select(DeviceContext context, BitmapHandle bitmap) {
  return SelectInto(context, bitmap);
}

BrushHandle Gdi::Select(DeviceContext context, BrushHandle brush) {
  return SelectInto(context, brush);
}

PenHandle Gdi::Select(DeviceContext context, PenHandle pen) {
  return SelectInto(context, pen);
}

FontHandle Gdi::Select(DeviceContext context, FontHandle font) {
  return SelectInto(context, font);
}

PaletteHandle Gdi::Select(DeviceContext context, PaletteHandle palette) {
  // As background palette: the host's colours come first.
  auto* previous = SelectPalette(Native(context), ToNative<HPALETTE>(palette), TRUE);
  RealizePalette(Native(context));
  return FromNative<PaletteHandle>(previous);
}

Colour Gdi::TextColour(DeviceContext context) {
  return GetTextColor(Native(context));
}

Colour Gdi::BackColour(DeviceContext context) {
  return GetBkColor(Native(context));
}

Colour Gdi::ExchangeTextColour(DeviceContext context, Colour colour) {
  return SetTextColor(Native(context), colour);
}

Colour Gdi::ExchangeBackColour(DeviceContext context, Colour colour) {
  return SetBkColor(Native(context), colour);
}

bool Gdi::ExchangeTransparency(DeviceContext context, bool transparent) {
  return SetBkMode(Native(context), transparent ? TRANSPARENT : OPAQUE) == TRANSPARENT;
}

std::uint32_t Gdi::LastError() {
  return GetLastError();
}

Colour Gdi::SystemColour(std::int32_t index) {
  return GetSysColor(index);
}

std::optional<Colour> Gdi::TranslateColour(Colour colour, PaletteHandle palette) {
  COLORREF translated = 0;
  if (FAILED(OleTranslateColor(colour, ToNative<HPALETTE>(palette), &translated)))
    return std::nullopt;
  // The answer may still be an entry of the palette, or the nearest one to an RGB.
  if (translated >> 24 == 1) return PaletteColour(palette, translated & 0xFFFF);
  return translated & 0xFFFFFF;
}

namespace {

BOOL CALLBACK FindMenu(HWND window, LPARAM found) {
  wchar_t name[8];
  const bool isMenu = GetClassNameW(window, name, 8) != 0 && wcscmp(name, L"#32768") == 0;
  if (!isMenu || !IsWindowVisible(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// Of the menu that is open and now opens another one; a keyboard opens it far from the pointer,
/// which tells the screen of the first.
HMONITOR ScreenOfMenu() {
  HWND menu = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindMenu, reinterpret_cast<LPARAM>(&menu));
  POINT pointer{};
  if (!menu) GetCursorPos(&pointer);
  return menu ? MonitorFromWindow(menu, MONITOR_DEFAULTTONEAREST)
              : MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST);
}

}  // namespace

std::int32_t Gdi::Dpi() {
  // Only Windows 8.1 and later have a figure for each screen, in a library the shell has loaded.
  using DpiOfMonitor = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
  HMODULE library = GetModuleHandleW(L"shcore.dll");
  void* found =
      library ? reinterpret_cast<void*>(GetProcAddress(library, "GetDpiForMonitor")) : nullptr;
  UINT x = 0;
  UINT y = 0;
  if (found && SUCCEEDED(reinterpret_cast<DpiOfMonitor>(found)(ScreenOfMenu(), 0, &x, &y)) && y > 0)
    return static_cast<std::int32_t>(y);

  const UniqueScreen screen(*this, OpenScreen());
  const int dpi = GetDeviceCaps(Native(screen.get()), LOGPIXELSY);
  return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

}  // namespace orvane::win32
