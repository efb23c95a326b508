#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "host/BareCalls.h"
#include "host/Com.h"
#include "host/Definition.h"
#include "host/DefinitionBench.h"
#include "host/Library.h"
#include "host/Measure.h"
#include "host/Modes.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"
#include "support/Scrambler.h"

namespace orvane::host {
namespace {

using Data = clsOrvaneData;

const std::vector<std::wstring> Kinds = {
    L".txt", L".doc", L".pdf", L".jpg", L".zip", L".htm", L".xml", L".wav", L".log", L".csv",
    L".png", L".gif", L".mp3", L".avi", L".ini", L".rtf", L".tar", L".bmp", L".tif", L".css"};
constexpr int Popups = 20;
constexpr int ListEntries = 3;

/// The class, registered for the object's life unless it is anyway.
class Registration {
 public:
  Registration() {
    CLSID known;
    m_ours = FAILED(CLSIDFromProgID(L"Orvane.ContextMenuHandler", &known));
    if (m_ours) Library().Call("DllRegisterServer");
  }
  ~Registration() {
    if (m_ours) Library().Call("DllUnregisterServer");
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;

 private:
  bool m_ours;
};

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

/// Loads the library, makes its first menu and lets it go.
void FirstMenu(const std::wstring& library, PCIDLIST_ABSOLUTE folder) {
  const HMODULE module = LoadLibraryW(library.c_str());
  using GetClass = HRESULT WINAPI(REFCLSID, REFIID, void**);
  auto* getClass = reinterpret_cast<GetClass*>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  {
    ComPtr<IClassFactory> factory;
    getClass(ClsidContextMenuHandler, IID_IClassFactory,
             reinterpret_cast<void**>(factory.GetAddressOf()));
    RightClickOnce(factory.Get(), folder);
  }
  FreeLibrary(module);
}

/// The version of comctl32 that the DLL's manifest names; the desktop has it loaded anyway.
HMODULE DesktopControls() {
  ACTCTXW request{};
  request.cbSize = sizeof request;
  request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
  const std::wstring library = LibraryPath();
  request.lpSource = library.c_str();
  request.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
  const HANDLE context = CreateActCtxW(&request);
  ULONG_PTR cookie = 0;
  if (context == INVALID_HANDLE_VALUE || !ActivateActCtx(context, &cookie)) return nullptr;
  const HMODULE controls = LoadLibraryW(L"comctl32.dll");
  DeactivateActCtx(0, cookie);
  ReleaseActCtx(context);
  return controls;
}

void BenchFirstMenu(Scene& scene, PCIDLIST_ABSOLUTE folder) {
  if (!DesktopControls()) std::fprintf(stderr, "no controls of the desktop's version\n");
  scene.PlainText();
  WriteFileItems(scene.Path(L"Menu.cfg"), 20);
  // The module stays in the process, so that each run loads a copy of its own.
  constexpr int Runs = 30;
  std::vector<std::wstring> orvane, empty;
  const auto copy = [&](const wchar_t* library, int run) {
    const std::filesystem::path from =
        std::filesystem::path(LibraryPath()).replace_filename(library);
    const std::wstring to = scene.Path((std::to_wstring(run) + library).c_str());
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
    return to;
  };
  for (int run = 0; run < Runs; ++run) {
    orvane.push_back(copy(L"orvane.dll", run));
    empty.push_back(copy(L"empty_handler.dll", run));
  }
  const auto next = [&](std::vector<std::wstring>& copies) {
    FirstMenu(copies.back(), folder);
    copies.pop_back();
  };
  Compare(
      "DLL loaded and first menu", Runs, [&] { next(orvane); }, [&] { next(empty); });
}

void BenchHandler(Scene& scene, IClassFactory* factory) {
  scene.Set(L"ShellShowIcons", 3);
  Compare(
      "handler without a menu", 200,
      [&] {
        ComPtr<IShellExtInit> init;
        factory->CreateInstance(nullptr, IID_IShellExtInit,
                                reinterpret_cast<void**>(init.GetAddressOf()));
      },
      [] { BareHandler(0); });
}

/// As entries of the lists are stored.
std::wstring Enciphered(const std::string& text) {
  std::vector<std::byte> bytes;
  for (const char character : text) bytes.push_back(static_cast<std::byte>(character));
  Scrambler(L"QWXKRTZPV").Scramble(bytes);
  std::wstring result(bytes.size(), L'\0');
  MultiByteToWideChar(CP_ACP, 0, reinterpret_cast<const char*>(bytes.data()),
                      static_cast<int>(bytes.size()), result.data(),
                      static_cast<int>(result.size()));
  return result;
}

/// Fills both lists with folders, as commands would have.
void FillLists(Scene& scene) {
  for (const wchar_t* list : {L"HistoryMRU", L"QuickAccessMRU"}) {
    const std::wstring key = std::wstring(L"Software\\Tarnwick\\Orvane\\ContextMenu\\") + list;
    const DWORD count = ListEntries;
    RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"MruFileCount", REG_DWORD, &count,
                    sizeof count);
    for (int i = 1; i <= ListEntries; ++i) {
      const std::wstring text = Enciphered("1,0,\"C:\\Work\",\"Recent " + std::to_string(i) + "\"");
      RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), (L"Mru" + std::to_wstring(i)).c_str(), REG_SZ,
                      text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
  }
  for (const wchar_t* name : {L"ShellShowHistoryMRU", L"ShellShowQuickAccessMRU"})
    scene.Set(name, 2);
}

/// Entries below twenty popups, both lists, and every picture that a background click shows.
void BenchRightClick(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder, int entries) {
  std::vector<DefinitionItem> items = {{0, Data::TypeRoot, 0, {L"Orvane"}}};
  for (int i = 0; i < Popups; ++i)
    items.push_back({1, Data::TypePopupMenu, 0, {L"Popup " + std::to_wstring(i)}});
  for (int i = 0; i < entries; ++i) {
    const std::wstring name = L"Document " + std::to_wstring(i);
    items.push_back({2 + i % Popups, Data::TypeFile, 0, {L"C:\\Work\\" + name + L".txt", name}});
  }
  items.push_back({1, Data::TypeFolder, 0, {scene.Folder(), L"This folder"}});
  items.push_back({1, Data::TypeFolder, 0, {L"C:\\Work", L"Work"}});
  items.push_back({1, Data::TypeCustomAction, 0, {L"Action", L"x"}});
  BareRightClick bare{scene.Path(L"Menu.cfg"), folder,
                      std::vector<std::wstring>(static_cast<std::size_t>(entries))};
  bare.pictures = {1, 2, 3, 4, 5, 7};
  bare.popups = Popups;
  bare.listEntries = ListEntries;
  bare.extras = 8;
  bare.ownerDraw = true;
  WriteDefinition(bare.config, items);
  const std::string work = "right-click, " + std::to_string(entries) + " entries";
  Compare(
      work.c_str(), 60, [&] { RightClickOnce(factory, folder); }, bare);
}

void BenchRightClicks(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder) {
  scene.Set(L"ShellOwnerDraw", 1);
  scene.Set(L"ShellShowIcons", 3);
  scene.Set(L"ShellUseOwnFolderBitmap", 1);
  FillLists(scene);
  for (const int entries : {100, 1000, 5000}) BenchRightClick(scene, factory, folder, entries);
  for (const wchar_t* name : {L"ShellShowHistoryMRU", L"ShellShowQuickAccessMRU"})
    scene.Set(name, 0);
}

void BenchIcons(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder) {
  scene.Set(L"ShellOwnerDraw", 0);
  BareRightClick bare{scene.Path(L"Menu.cfg"), folder, {}, Kinds, {1}};
  std::vector<DefinitionItem> items = {{0, Data::TypeRoot, 0, {L"Orvane"}}};
  for (std::size_t i = 0; i < 1000; ++i) {
    const std::wstring name = L"Icon " + std::to_wstring(i) + Kinds[i % Kinds.size()];
    bare.files.push_back(scene.Path(name.c_str()));
    std::ofstream(std::filesystem::path(bare.files.back())) << "x";
    items.push_back({1, Data::TypeFile, 0, {bare.files.back(), name}});
  }
  WriteDefinition(bare.config, items);
  Compare(
      "icons of 1000 files", 15, [&] { RightClickOnce(factory, folder); }, bare);
}

/// A folder of files of twenty kinds, shown by a dynamic folder.
class Many {
 public:
  Many(Scene& scene, std::size_t files) : m_folder(scene.Path(L"Many")) {
    std::filesystem::create_directory(m_folder);
    for (std::size_t i = 0; i < files; ++i) {
      m_names.push_back(L"File " + std::to_wstring(i) + Kinds[i % Kinds.size()]);
      std::ofstream{m_folder / m_names.back()};
    }
    scene.Set(L"ShellShowIcons", 3);
    scene.Set(L"ShellOwnerDraw", 1);
    scene.Set(L"ShellIgnoreBoundsCheck", 1);
    WriteDefinition(scene.Path(L"Menu.cfg"),
                    {{0, Data::TypeRoot, 0, {L"Orvane"}},
                     {1, Data::TypeDynamicFolder, 0, {m_folder.wstring(), L"Many", L"", L"0"}}});
  }
  ~Many() { std::filesystem::remove_all(m_folder); }
  Many(const Many&) = delete;
  Many& operator=(const Many&) = delete;

  std::wstring Folder() const { return m_folder.wstring(); }
  const std::vector<std::wstring>& Names() const { return m_names; }

 private:
  std::filesystem::path m_folder;
  std::vector<std::wstring> m_names;
};

/// A right-click whose one dynamic folder is opened.
struct OpenFolder {
  explicit OpenFolder(Scene& scene) : click(scene.Folder(), nullptr) {
    click.Query();
    submenu = GetSubMenu(GetSubMenu(click.menu, 1), 0);
  }
  void Send(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    click.handler->HandleMenuMsg2(message, wParam, lParam, &result);
  }
  void Open() { Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(submenu), 0); }

  RightClick click;
  HMENU submenu = nullptr;
};

void BenchFolder(Scene& scene, std::size_t files) {
  const Many many(scene, files);
  std::vector<double> bare, whole;
  for (int run = 0; run < 25; ++run) {
    const HMENU menu = CreatePopupMenu();
    bare.push_back(Milliseconds([&] { BareFolder(many.Folder(), menu); }));
    DestroyMenu(menu);
    OpenFolder open(scene);
    whole.push_back(Milliseconds([&] { open.Open(); }));
    if (static_cast<std::size_t>(GetMenuItemCount(open.submenu)) != files)
      std::fprintf(stderr, "not all listed\n");
  }
  PrintRow(("dynamic folder, " + std::to_string(files) + " files").c_str(), whole, bare);
}

void BenchPainting(Scene& scene) {
  const Many many(scene, 40);
  const HDC context = CreateCompatibleDC(nullptr);
  const HDC screen = GetDC(nullptr);
  const HBITMAP surface = CreateCompatibleBitmap(screen, 200, 20);
  ReleaseDC(nullptr, screen);
  const HGDIOBJ old = SelectObject(context, surface);
  std::vector<double> bare, whole;
  for (int run = 0; run < 25; ++run) {
    bare.push_back(Milliseconds([&] { BarePainting(context, many.Names(), Kinds); }));
    OpenFolder open(scene);
    open.Open();
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.hDC = context;
    draw.rcItem = {0, 0, 200, 20};
    whole.push_back(Milliseconds([&] {
      for (int i = 0; i < 40; ++i) {
        draw.itemID = GetMenuItemID(open.submenu, i);
        open.Send(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
      }
    }));
  }
  SelectObject(context, old);
  DeleteObject(surface);
  DeleteDC(context);
  PrintRow("first painting of 40 entries", whole, bare);
}

}  // namespace

int RunBench() {
  const Apartment apartment;
  const Registration registration;
  Scene scene;
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  scene.Set(L"ShellCustomActionsFile", L"");
  for (const wchar_t* name :
       {L"ShellShowHistoryMRU", L"ShellShowQuickAccessMRU", L"ShellShowFlags"})
    scene.Set(name, 0);
  const UniquePidl folder = ParsePath(scene.Folder());
  BenchFirstMenu(scene, folder.get());
  ComPtr<IClassFactory> factory;
  if (FAILED(CoGetClassObject(ClsidContextMenuHandler, CLSCTX_INPROC_SERVER, nullptr,
                              IID_IClassFactory,
                              reinterpret_cast<void**>(factory.GetAddressOf())))) {
    std::fprintf(stderr, "orvane.dll cannot be registered\n");
    return 1;
  }
  BenchHandler(scene, factory.Get());
  BenchDefinition(scene);
  BenchRightClicks(scene, factory.Get(), folder.get());
  BenchIcons(scene, factory.Get(), folder.get());
  for (const std::size_t files : {100, 1000, 10'000}) BenchFolder(scene, files);
  BenchPainting(scene);
  return 0;
}

}  // namespace orvane::host
