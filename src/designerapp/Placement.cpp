#include "designerapp/Placement.h"

#include "menudata/RegistryAccess.h"

namespace orvane::designerapp {
namespace {

constexpr const wchar_t* Key = L"Software\\Tarnwick\\Orvane\\Designer\\";
constexpr const wchar_t* Names[] = {L"WindowLeft", L"WindowTop", L"WindowRight", L"WindowBottom"};
constexpr LONG RECT::*Edges[] = {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom};
constexpr const wchar_t* Maximized = L"WindowMaximized";

bool CanBeSeen(const RECT& rect) {
  return rect.right - rect.left >= 200 && rect.bottom - rect.top >= 150 &&
         MonitorFromRect(&rect, MONITOR_DEFAULTTONULL);
}

}  // namespace

bool RestorePlacement(HWND window, Registry& registry, int show) {
  std::unique_ptr<RegistryKey> key;
  if (registry.OpenToRead(Hive::CurrentUser, Key, key) != 0) return false;
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  for (int i = 0; i < 4; ++i) {
    std::int32_t edge = 0;
    if (ReadValue(*key, Names[i], edge) != 0) return false;
    placement.rcNormalPosition.*Edges[i] = edge;
  }
  if (!CanBeSeen(placement.rcNormalPosition)) return false;
  bool maximized = false;
  ReadValue(*key, Maximized, maximized);
  placement.showCmd =
      static_cast<UINT>(maximized && show == SW_SHOWNORMAL ? SW_SHOWMAXIMIZED : show);
  return SetWindowPlacement(window, &placement);
}

void SavePlacement(HWND window, Registry& registry) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  std::unique_ptr<RegistryKey> key;
  if (!GetWindowPlacement(window, &placement)) return;
  if (registry.OpenToWrite(Hive::CurrentUser, Key, key) != 0) return;
  for (int i = 0; i < 4; ++i)
    WriteValue(*key, Names[i], static_cast<std::int32_t>(placement.rcNormalPosition.*Edges[i]));
  WriteValue(*key, Maximized, IsZoomed(window) != FALSE);
}

}  // namespace orvane::designerapp
