#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "host/BareCalls.h"
#include "host/Com.h"
#include "host/Definition.h"
#include "host/Library.h"
#include "host/Measure.h"
#include "host/Modes.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

constexpr const wchar_t* Kinds[] = {L".txt", L".doc", L".pdf", L".jpg", L".zip",
                                    L".htm", L".xml", L".wav", L".log", L".csv"};

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

void PrintHeader(const char* what) {
  std::printf("%-24s entries  calls alone       orvane    ratio   (medians, milliseconds)\n", what);
}

void PrintRow(std::size_t entries, const std::vector<double>& bare,
              const std::vector<double>& whole) {
  std::printf("%32zu %12.3f %12.3f %8.2f\n", entries, Median(bare), Median(whole),
              Median(whole) / Median(bare));
}

void CompareRightClick(IClassFactory* factory, const BareRightClick& bareCalls) {
  std::vector<double> bare, whole;
  for (int run = 0; run < 60; ++run) {
    bare.push_back(Milliseconds(bareCalls));
    whole.push_back(Milliseconds([&] { RightClickOnce(factory, bareCalls.folder); }));
  }
  PrintRow(bareCalls.files.size(), bare, whole);
}

void BenchText(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder) {
  PrintHeader("right-click, text");
  const std::wstring config = scene.Path(L"Menu.cfg");
  for (const int items : {100, 1000, 5000}) {
    WriteFileItems(config, items);
    CompareRightClick(
        factory, {config, folder, std::vector<std::wstring>(static_cast<std::size_t>(items)), {}});
  }
}

void BenchIcons(Scene& scene, IClassFactory* factory, PCIDLIST_ABSOLUTE folder) {
  PrintHeader("right-click, icon level 3");
  scene.Set(L"ShellShowIcons", 3);
  BareRightClick bare{scene.Path(L"Menu.cfg"), folder, {}, {std::begin(Kinds), std::end(Kinds)}};
  std::vector<DefinitionItem> items = {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}}};
  for (std::size_t i = 0; i < 50; ++i) {
    const std::wstring name = L"Icon " + std::to_wstring(i) + Kinds[i % std::size(Kinds)];
    bare.files.push_back(scene.Path(name.c_str()));
    std::ofstream(std::filesystem::path(bare.files.back())) << "x";
    items.push_back({1, clsOrvaneData::TypeFile, 0, {bare.files.back(), name}});
  }
  WriteDefinition(bare.config, items);
  CompareRightClick(factory, bare);
}

void BenchFolder(Scene& scene, std::size_t files) {
  const std::filesystem::path folder = scene.Path(L"Many");
  std::filesystem::create_directory(folder);
  for (std::size_t i = 0; i < files; ++i)
    std::ofstream(folder / (L"File " + std::to_wstring(i) + Kinds[i % std::size(Kinds)]));
  std::vector<double> bare, whole;
  for (int run = 0; run < 15; ++run) {
    const HMENU menu = CreatePopupMenu();
    bare.push_back(Milliseconds([&] { BareFolder(folder.wstring(), menu); }));
    DestroyMenu(menu);
    RightClick click(scene.Folder(), nullptr);
    click.Query();
    const HMENU submenu = GetSubMenu(GetSubMenu(click.menu, 1), 0);
    LRESULT result = 0;
    whole.push_back(Milliseconds([&] {
      click.handler->HandleMenuMsg2(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(submenu), 0,
                                    &result);
    }));
    if (static_cast<std::size_t>(GetMenuItemCount(submenu)) != files) std::puts("not all listed");
  }
  PrintRow(files, bare, whole);
  std::filesystem::remove_all(folder);
}

void BenchFolders(Scene& scene) {
  PrintHeader("dynamic folder, opened");
  scene.Set(L"ShellShowIcons", 3);
  scene.Set(L"ShellOwnerDraw", 1);
  scene.Set(L"ShellIgnoreBoundsCheck", 1);  // more entries than identifiers are reserved for
  WriteDefinition(
      scene.Path(L"Menu.cfg"),
      {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}},
       {1, clsOrvaneData::TypeDynamicFolder, 0, {scene.Path(L"Many"), L"Many", L"", L"0"}}});
  for (const std::size_t files : {100, 1000, 5000, 20000}) BenchFolder(scene, files);
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
  BenchText(scene, factory.Get(), folder.get());
  BenchIcons(scene, factory.Get(), folder.get());
  BenchFolders(scene);
  return 0;
}

}  // namespace orvane::host
