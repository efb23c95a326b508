#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "menudata/Definition.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane {
namespace {

constexpr const wchar_t* ConfigFile = L"C:\\Program Files\\Orvane\\Default.cfg";

/// A definition file of that many file entries.
void Define(memory::Desktop& desktop, std::int32_t count) {
  Definition definition;
  definition.items.emplace_back().data.m_szRoot_Caption = L"Orvane";
  for (std::int32_t i = 0; i < count; ++i) {
    Definition::Item& item = definition.items.emplace_back();
    item.parent = 1;
    item.data.m_lType = clsOrvaneData::TypeFile;
    item.data.Location(L"C:\\Work\\Documents\\document " + std::to_wstring(i) + L".txt");
    item.data.Caption(L"Document number " + std::to_wstring(i));
  }
  definition.header.ItemCount = count + 1;
  const CodePage codePage(desktop.system.AnsiCharacters());
  Scrambler scrambler;
  const auto bytes = WriteDefinition(definition, codePage, scrambler);
  desktop.files.AddFile(ConfigFile, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

/// Create, Initialize, QueryContextMenu, release, and the shell's end of the menu.
void RightClick(memory::Desktop& desktop) {
  const MenuHandle menu = desktop.menus.CreatePopup();
  {
    ModuleGlobals globals(desktop.Bundle());
    ContextMenuHandler handler(globals);
    handler.IShellExtInit_Initialize(memory::Shell::ItemOf(L"C:\\Work"),
                                     std::make_shared<memory::DataObject>(
                                         std::initializer_list<std::wstring_view>{L"C:\\Work\\a"}),
                                     0);
    benchmark::DoNotOptimize(handler.IContextMenu_QueryContextMenuEx(menu, 0, 1, 32767, 0));
  }
  desktop.menus.Destroy(menu);
}

void BM_RightClick(benchmark::State& state) {
  memory::Desktop desktop;
  Define(desktop, static_cast<std::int32_t>(state.range(0)));
  for (auto _ : state) {
    RightClick(desktop);
    desktop.effects.Clear();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_RightClick)
    ->Arg(50)
    ->Arg(1000)
    ->Arg(5000)
    ->Complexity()
    ->Unit(benchmark::kMicrosecond);

/// A dynamic folder of that many files of ten kinds, opened.
void BM_OpenDynamicFolder(benchmark::State& state) {
  memory::Desktop desktop;
  for (std::int64_t i = 0; i < state.range(0); ++i)
    desktop.files.AddFile(L"C:\\Work\\file " + std::to_wstring(i * 7919 % state.range(0)) + L".ex" +
                          std::to_wstring(i % 10));
  Definition definition;
  definition.items.emplace_back();
  Definition::Item& folder = definition.items.emplace_back();
  folder.parent = 1;
  folder.data.m_lType = clsOrvaneData::TypeDynamicFolder;
  folder.data.Location(L"C:\\Work");
  definition.header.ItemCount = 2;
  ModuleGlobals globals(desktop.Bundle());
  const auto bytes = WriteDefinition(definition, globals.codePage, globals.scrambler);
  desktop.files.AddFile(ConfigFile, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  for (auto _ : state) {
    state.PauseTiming();
    const MenuHandle menu = desktop.menus.CreatePopup();
    auto handler = std::make_unique<ContextMenuHandler>(globals);
    handler->IContextMenu_QueryContextMenuEx(menu, 0, 1, 32767, 0);
    MenuHandle submenu = MenuHandle::None;
    handler->State().dynamicMenus.ForEach([&](MenuHandle only) { submenu = only; });
    state.ResumeTiming();
    handler->Menu().Open(submenu);
    state.PauseTiming();
    handler.reset();
    desktop.menus.Destroy(menu);
    state.ResumeTiming();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_OpenDynamicFolder)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(20000)
    ->Complexity(benchmark::oNLogN)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane
