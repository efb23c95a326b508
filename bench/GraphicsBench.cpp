// What pictures and owner drawing add to the platform's own calls.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "graphics/MenuBitmaps.h"
#include "graphics/OwnerDrawMenu.h"
#include "memory/Desktop.h"

namespace orvane {
namespace {

class Bench : private MenuItemLookup {
 public:
  explicit Bench(std::size_t entries) : records(entries) {
    LoadMenuBitmaps(desktop.gdi, bitmaps);
    for (std::size_t i = 0; i < entries; ++i) {
      records[i].m_lType = clsOrvaneData::TypeFile;
      records[i].Caption(L"Entry " + std::to_wstring(i) + L".txt");
      records[i].Location(L"C:\\folder\\" + records[i].Caption());
      desktop.files.AddFile(records[i].Location());
    }
  }
  ~Bench() override { DeleteMenuBitmaps(desktop.gdi, bitmaps); }

  void Fill(std::int32_t bitmapKey, bool ownerDraw) {
    options.m_bShellOwnerDraw = ownerDraw;
    const UniqueMenu menu(desktop.menus, desktop.menus.CreatePopup());
    for (std::size_t i = 0; i < records.size(); ++i) {
      drawing.AddMenuWithBitmap({.menu = menu.get(),
                                 .caption = records[i].Caption(),
                                 .id = static_cast<std::int32_t>(i),
                                 .bitmapKey = bitmapKey,
                                 .fileName = true,
                                 .record = &records[i]});
    }
  }

  void Insert() {
    const UniqueMenu menu(desktop.menus, desktop.menus.CreatePopup());
    for (std::size_t i = 0; i < records.size(); ++i) {
      MenuEntry entry;
      entry.caption = records[i].Caption();
      entry.id = static_cast<std::uint32_t>(i);
      desktop.menus.Insert(menu.get(), Menus::Append, entry);
    }
  }

  memory::Desktop desktop;
  clsOptions options;
  clsCollection bitmaps;
  std::vector<clsOrvaneData> records;
  OwnerDrawMenu drawing{options,       desktop.menus, desktop.gdi, desktop.icons,
                        desktop.files, bitmaps,       *this};

 private:
  std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId) override {
    return records[static_cast<std::size_t>(lId)].Caption();
  }
  BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId) override {
    return drawing.Picture(records[static_cast<std::size_t>(lId)]);
  }
};

void RawInsertion(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Insert();
}
BENCHMARK(RawInsertion)->Arg(1000)->Arg(5000);

void TextEntries(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(0, true);
}
BENCHMARK(TextEntries)->Arg(1000)->Arg(5000);

void OwnerDrawnFiles(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(OwnerDrawMenu::OwnIcon, true);
}
BENCHMARK(OwnerDrawnFiles)->Arg(1000)->Arg(5000);

void CheckMarkFiles(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(OwnerDrawMenu::OwnIcon, false);
}
BENCHMARK(CheckMarkFiles)->Arg(1000)->Arg(5000);

void MenuBitmaps(benchmark::State& state) {
  memory::Desktop desktop;
  for (auto _ : state) {
    clsCollection bitmaps;
    LoadMenuBitmaps(desktop.gdi, bitmaps);
    DeleteMenuBitmaps(desktop.gdi, bitmaps);
  }
}
BENCHMARK(MenuBitmaps);

void MeasureEntries(benchmark::State& state) {
  Bench bench(1000);
  for (auto _ : state) {
    for (std::int32_t id = 0; id < 1000; ++id) {
      MeasureItem item{.id = id};
      bench.drawing.HandleMessage(MenuMessage::MeasureItem, 0,
                                  reinterpret_cast<std::intptr_t>(&item));
    }
  }
}
BENCHMARK(MeasureEntries);

}  // namespace
}  // namespace orvane
