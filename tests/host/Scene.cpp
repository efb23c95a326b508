#include "host/Scene.h"

#include <fstream>

#include "host/Library.h"

namespace orvane::host {
namespace {
constexpr wchar_t Settings[] = L"Software\\Tarnwick\\Orvane";
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

RightClick::RightClick(const std::wstring& folder, IDataObject* selection)
    : menu(CreatePopupMenu()) {
  ComPtr<IShellExtInit> init;
  if (FAILED(CoCreateInstance(ClsidContextMenuHandler, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IShellExtInit, reinterpret_cast<void**>(init.GetAddressOf())))) {
    return;
  }
  const UniquePidl item = folder.empty() ? nullptr : ParsePath(folder);
  initialized = init->Initialize(item.get(), selection, nullptr);
  init->QueryInterface(IID_IContextMenu3, reinterpret_cast<void**>(handler.GetAddressOf()));
}

RightClick::~RightClick() {
  DestroyMenu(menu);
}

HRESULT RightClick::Query(UINT first, UINT last) {
  return handler->QueryContextMenu(menu, 0, first, last, CMF_NORMAL);
}

void RightClick::NewMenu() {
  DestroyMenu(menu);
  menu = CreatePopupMenu();
}

}  // namespace orvane::host
