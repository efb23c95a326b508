// Reading a menu definition file, sorting a folder's entries, looking commands up.

#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "memory/Desktop.h"
#include "menudata/CommandTable.h"
#include "menudata/Definition.h"

namespace orvane {
namespace {

struct Tools {
  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  Scrambler scrambler;
  clsOptions options;
  clsOrvaneDataTools data{options, codePage, scrambler, desktop.shell};
};

std::vector<std::byte> DefinitionOf(Tools& tools, std::int64_t items) {
  Definition definition;
  for (std::int64_t i = 0; i < items; ++i) {
    Definition::Item item;
    item.parent = i == 0 ? 0 : 1;
    item.data.m_lType = i == 0 ? clsOrvaneData::TypeRoot : clsOrvaneData::TypeFile;
    const std::wstring name = L"document " + std::to_wstring(i);
    item.data.Caption(name);
    item.data.Location(L"C:\\Work\\Reports\\" + name + L".txt");
    definition.items.push_back(item);
  }
  return WriteDefinition(definition, tools.codePage, tools.scrambler);
}

/// As menu construction does it: one node and one record an item.
void ReadDefinitionFile(benchmark::State& state) {
  Tools tools;
  const std::vector<std::byte> bytes = DefinitionOf(tools, state.range(0));
  for (auto _ : state) {
    CommandTable commands;
    DefinitionFile file(bytes, tools.codePage, &commands.Memory());
    clsFileHeader header;
    tools.data.File_ReadVersion(file);
    tools.data.File_ReadHeader(file, header);
    for (std::int32_t i = 0; i < header.ItemCount; ++i) {
      const auto record = commands.NewRecord();
      commands.Add(record);
      std::int32_t parent = 0;
      tools.data.File_ReadItemHeader(file, parent, *record);
      tools.data.ReadData(file, *record);
    }
    benchmark::DoNotOptimize(commands.Count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(ReadDefinitionFile)->Arg(100)->Arg(1000)->Arg(5000)->Unit(benchmark::kMicrosecond);

/// Keys as a dynamic folder makes them.
void SortBubble(benchmark::State& state) {
  std::mt19937 random(1);
  clsCollection list;
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    const std::wstring number = std::to_wstring(random() % static_cast<unsigned>(state.range(0)));
    list.Add((random() % 10 == 0 ? L"\t" : L"") + (L"holiday picture " + number) + L".jpg");
  }
  for (auto _ : state) benchmark::DoNotOptimize(list.Sort_Bubble(L"m_szKey"));
}
BENCHMARK(SortBubble)->Arg(1000)->Arg(20'000)->Unit(benchmark::kMillisecond);

void LookUpEveryCommand(benchmark::State& state) {
  const auto count = static_cast<std::int32_t>(state.range(0));
  clsCollection list;
  for (std::int32_t i = 0; i < count; ++i) list.Add({}, 100 + i);
  for (auto _ : state) {
    list.Item(count)->m_lKey = 100 + count;  // the index has to be kept right
    for (std::int32_t i = 0; i < count; ++i) benchmark::DoNotOptimize(list.ItemViaKey(100 + i));
  }
  state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(LookUpEveryCommand)->Arg(5000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvane
