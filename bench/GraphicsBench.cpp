// What pictures and owner drawing add to the platform's own calls.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "graphics/OwnerDrawMenu.h"
#include "memory/Desktop.h"

namespace orvane {
namespace {

struct Bench {
  explicit Bench(std::size_t entries) {
    for (std::size_t i = 0; i < entries; ++i) {
      auto record = std::make_shared<clsOrvaneData>();
      record->m_lType = clsOrvaneData::TypeFile;
      record->Caption(L"Entry " + std::to_wstring(i) + L".txt");
      record->Location(L"C:\\folder\\" + record->Caption());
      desktop.files.AddFile(record->Location());
      Command& command = commands.emplace_back(table.Add(std::move(record)));
      command.Id(static_cast<std::int32_t>(i));
      command.IsFileName(true);
    }
  }

  void Fill(Picture picture, bool ownerDraw) {
    options.m_bShellOwnerDraw = ownerDraw;
    const UniqueMenu menu(desktop.menus, desktop.menus.CreatePopup());
    for (const Command& command : commands)
      drawing.AddMenuWithBitmap(
          menu.get(), Menus::Append,
          {.command = command, .caption = command.Record()->Caption(), .picture = picture});
  }

  void Insert() {
    const UniqueMenu menu(desktop.menus, desktop.menus.CreatePopup());
    for (const Command& command : commands) {
      MenuEntry entry;
      entry.caption = command.Record()->Caption();
      entry.id = static_cast<std::uint32_t>(command.Id());
      desktop.menus.Insert(menu.get(), Menus::Append, entry);
    }
  }

  memory::Desktop desktop;
  clsOptions options;
  CommandTable table;
  std::vector<Command> commands;
  PictureStore pictures{desktop.gdi, desktop.icons, desktop.files};
  MenuPainter painter{desktop.gdi};
  OwnerDrawMenu drawing{options, desktop.menus, pictures, painter};
};

void RawInsertion(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Insert();
}
BENCHMARK(RawInsertion)->Arg(1000)->Arg(5000);

void TextEntries(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(Picture::None, true);
}
BENCHMARK(TextEntries)->Arg(1000)->Arg(5000);

void OwnerDrawnFiles(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(Picture::OwnIcon, true);
}
BENCHMARK(OwnerDrawnFiles)->Arg(1000)->Arg(5000);

void CheckMarkFiles(benchmark::State& state) {
  Bench bench(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) bench.Fill(Picture::OwnIcon, false);
}
BENCHMARK(CheckMarkFiles)->Arg(1000)->Arg(5000);

void AllPictures(benchmark::State& state) {
  memory::Desktop desktop;
  for (auto _ : state) {
    PictureStore pictures(desktop.gdi, desktop.icons, desktop.files);
    for (std::int32_t key = 1; key <= 9; ++key) pictures.Find(static_cast<Picture>(key));
  }
}
BENCHMARK(AllPictures);

void MeasureEntries(benchmark::State& state) {
  Bench bench(1000);
  for (auto _ : state) {
    for (const Command& command : bench.commands)
      benchmark::DoNotOptimize(bench.painter.Measure(command.Record()->Caption(), true));
  }
}
BENCHMARK(MeasureEntries);

}  // namespace
}  // namespace orvane
