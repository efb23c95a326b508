#include "host/Scene.h"

#include <fstream>

#include "host/Library.h"

namespace orvane::host {
namespace {

constexpr wchar_t Settings[] = L"Software\\Tarnwick\\Orvane";

std::wstring TextOf(HMENU menu, std::size_t level) {
  std::wstring text;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const HMENU submenu = GetSubMenu(menu, i);
    const UINT state = GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
    const bool separator = !submenu && state & MF_SEPARATOR;
    text.append(level * 2, L' ').append(separator ? L"--------" : CaptionOf(menu, i));
    if (submenu) text += L" >";
    if (!separator && state & (MF_DISABLED | MF_GRAYED)) text += L" (disabled)";
    text += L'\n';
    if (submenu) text += TextOf(submenu, level + 1);
  }
  return text;
}

/// Identifier of the entry; 0 when there is none.
UINT Find(HMENU menu, const std::wstring& caption) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const HMENU submenu = GetSubMenu(menu, i);
    if (!submenu && CaptionOf(menu, i) == caption) return GetMenuItemID(menu, i);
    if (const UINT id = submenu ? Find(submenu, caption) : 0) return id;
  }
  return 0;
}

}  // namespace

std::wstring CaptionOf(HMENU menu, int position) {
  wchar_t caption[256] = L"";
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_STRING;
  info.dwTypeData = caption;
  info.cch = 256;
  GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
  return caption;
}

Scene::Scene() : m_folder(L"C:\\Orvane Test") {
  std::filesystem::create_directories(m_folder / L"Reports");
  for (const wchar_t* name : {L"a.txt", L"b.txt", L"R&D.txt", L"\u0416.txt"}) {
    std::ofstream(m_folder / name) << "x";
  }
  RegDeleteTreeW(HKEY_CURRENT_USER, Settings);
}

Scene::~Scene() {
  RegDeleteTreeW(HKEY_CURRENT_USER, Settings);
  std::error_code ignored;
  std::filesystem::remove_all(m_folder, ignored);
}

void Scene::Set(const wchar_t* name, DWORD number) {
  RegSetKeyValueW(HKEY_CURRENT_USER, Settings, name, REG_DWORD, &number, sizeof number);
}

void Scene::Set(const wchar_t* name, const std::wstring& text) {
  RegSetKeyValueW(HKEY_CURRENT_USER, Settings, name, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void Scene::PlainText() {
  Set(L"ShellShowIcons", 0);
  Set(L"ShellOwnerDraw", 0);
}

RightClick::RightClick(const std::wstring& folder, IDataObject* selection) {
  ComPtr<IShellExtInit> init;
  if (FAILED(CoCreateInstance(ClsidContextMenuHandler, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IShellExtInit, reinterpret_cast<void**>(init.GetAddressOf())))) {
    return;
  }
  const UniquePidl item = folder.empty() ? nullptr : ParsePath(folder);
  initialized = init->Initialize(item.get(), selection, nullptr);
  init->QueryInterface(IID_IContextMenu3, reinterpret_cast<void**>(handler.GetAddressOf()));
}

HRESULT RightClick::Query(UINT first, UINT last) {
  return handler->QueryContextMenu(menu, 0, first, last, CMF_NORMAL);
}

void RightClick::NewMenu() {
  DestroyMenu(menu);
  menu = CreatePopupMenu();
}

std::wstring RightClick::Text() const {
  return TextOf(menu, 0);
}

bool RightClick::Invoke(UINT id, HWND window) const {
  CMINVOKECOMMANDINFO record{};
  record.cbSize = sizeof record;
  record.hwnd = window;
  record.lpVerb = MAKEINTRESOURCEA(id - 1);
  record.nShow = SW_SHOWNORMAL;
  return handler->InvokeCommand(&record) == S_OK;
}

bool RightClick::Choose(const std::wstring& caption, HWND window) const {
  const UINT id = Find(menu, caption);
  return id != 0 && Invoke(id, window);
}

}  // namespace orvane::host
