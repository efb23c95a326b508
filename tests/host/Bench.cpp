#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Library.h"
#include "host/Modes.h"
#include "host/Scene.h"

namespace orvane::host {
namespace {

constexpr wchar_t Settings[] = L"Software\\Tarnwick\\Orvane\\";

// The values that every new handler reads.
constexpr const wchar_t* SettingNames[] = {L"ShellEnable",
                                           L"ShellShowInIE",
                                           L"ShellShowIcons",
                                           L"ShellUseOwnFolderBitmap",
                                           L"ShellShowHistoryMRU",
                                           L"ShelllMaxHistoryMRU",
                                           L"ShellShowQuickAccessMRU",
                                           L"ShellShowFlags",
                                           L"ShellConfigFile",
                                           L"ShellCustomActionsFile",
                                           L"ShellMaxMenuText",
                                           L"ShellIgnoreBoundsCheck",
                                           L"ShellOwnerDraw",
                                           L"DebugFlags",
                                           L"DebugEnable",
                                           L"DebugOutput",
                                           L"DebugShowWindowsMenuInfo",
                                           L"DebugEnableInMenu",
                                           L"TimingEnable",
                                           L"TimingOutput",
                                           L"GeneralShowBackground",
                                           L"GeneralAllowMultipleInstances",
                                           L"GeneralSaveWindowPos"};

constexpr wchar_t ListCount[] = L"MruFileCount";

void Read(HKEY key, const wchar_t* name) {
  BYTE data[1024];
  DWORD size = sizeof data;
  RegQueryValueExW(key, name, nullptr, nullptr, data, &size);
}

void ReadSettings() {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, Settings, 0, KEY_QUERY_VALUE, &key);
  for (const wchar_t* name : SettingNames) Read(key, name);
  RegCloseKey(key);
}

void ReadList(const wchar_t* path) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS) return;
  Read(key, ListCount);
  RegCloseKey(key);
}

void SaveList(const wchar_t* path) {
  HKEY key = nullptr;
  const DWORD count = 0;
  RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_SET_VALUE | KEY_CREATE_SUB_KEY,
                  nullptr, &key, nullptr);
  RegSetValueExW(key, ListCount, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&count), sizeof count);
  RegCloseKey(key);
}

void ReadFileWhole(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  std::vector<char> bytes(GetFileSize(file, nullptr));
  DWORD read = 0;
  ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
  CloseHandle(file);
}

void Insert(HMENU menu, UINT id, const wchar_t* caption, HMENU submenu = nullptr) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_STRING | MIIM_FTYPE;
  info.wID = id;
  info.hSubMenu = submenu;
  info.dwTypeData = const_cast<wchar_t*>(caption);
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info);
}

/// A right-click's platform calls with nothing around them.
void BareCalls(const std::wstring& config, PCIDLIST_ABSOLUTE folder, int items) {
  constexpr const wchar_t* history = L"Software\\Tarnwick\\Orvane\\ContextMenu\\HistoryMRU\\";
  constexpr const wchar_t* quickAccess =
      L"Software\\Tarnwick\\Orvane\\ContextMenu\\QuickAccessMRU\\";
  ReadSettings();
  ReadList(history);
  ReadList(quickAccess);
  ReadList(L"Software\\Tarnwick\\Orvane\\ContextMenu\\CopyTo\\");
  wchar_t path[MAX_PATH];
  SHGetPathFromIDListW(folder, path);
  GetFileAttributesW(config.c_str());
  ReadFileWhole(config);
  const HMENU menu = CreatePopupMenu();
  const HMENU root = CreatePopupMenu();
  InsertMenuW(menu, 0, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
  for (int i = 0; i < items; ++i) Insert(root, static_cast<UINT>(i + 1), L"Document 1000");
  AppendMenuW(root, MF_SEPARATOR, 0, nullptr);
  Insert(root, static_cast<UINT>(items + 1), L"&Designer...");
  Insert(menu, 0, L"Orvane", root);
  InsertMenuW(menu, 2, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
  SaveList(history);
  SaveList(quickAccess);
  DestroyMenu(menu);
}

void RightClickOnce(IClassFactory* factory, PCIDLIST_ABSOLUTE folder) {
  const HMENU menu = CreatePopupMenu();
  ComPtr<IShellExtInit> init;
  ComPtr<IContextMenu> handler;
  factory->CreateInstance(nullptr, IID_IShellExtInit,
                          reinterpret_cast<void**>(init.GetAddressOf()));
  init->Initialize(folder, nullptr, nullptr);
  init->QueryInterface(IID_IContextMenu, reinterpret_cast<void**>(handler.GetAddressOf()));
  handler->QueryContextMenu(menu, 0, 1, 32767, CMF_NORMAL);
  DestroyMenu(menu);
}

double Milliseconds(const std::function<void()>& work) {
  LARGE_INTEGER frequency, start, end;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  work();
  QueryPerformanceCounter(&end);
  return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
         static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Compare(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder, int items) {
  const std::wstring config = scene.Path(L"Menu.cfg");
  WriteFileItems(config, items);
  std::vector<double> bare, whole;
  for (int run = 0; run < 60; ++run) {
    bare.push_back(Milliseconds([&] { BareCalls(config, folder, items); }));
    whole.push_back(Milliseconds([&] { RightClickOnce(factory, folder); }));
  }
  std::printf("%8d %12.3f %14.3f %8.2f\n", items, Median(bare), Median(whole),
              Median(whole) / Median(bare));
}

}  // namespace

int RunBench() {
  const Apartment apartment;
  Scene scene;
  scene.PlainText();
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  scene.Set(L"ShellCustomActionsFile", L"");
  scene.Set(L"ShellShowQuickAccessMRU", 0);
  scene.Set(L"ShellShowFlags", 0);
  ComPtr<IClassFactory> factory;
  if (FAILED(CoGetClassObject(ClsidContextMenuHandler, CLSCTX_INPROC_SERVER, nullptr,
                              IID_IClassFactory,
                              reinterpret_cast<void**>(factory.GetAddressOf())))) {
    std::puts("orvane.dll is not registered");
    return 1;
  }
  const UniquePidl folder = ParsePath(scene.Folder());
  std::puts("   items  calls alone    right-click    ratio   (medians, milliseconds)");
  for (const int items : {100, 1000, 5000}) Compare(scene, factory.Get(), folder.get(), items);
  return 0;
}

}  // namespace orvane::host
