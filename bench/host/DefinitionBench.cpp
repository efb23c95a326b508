#include "host/DefinitionBench.h"

#include <span>

#include "host/BareCalls.h"
#include "host/Definition.h"
#include "host/Measure.h"
#include "memory/Desktop.h"
#include "menudata/CommandTable.h"
#include "menudata/clsOrvaneDataTools.h"
#include "support/Scrambler.h"

namespace orvane::host {
namespace {

void Decipher(std::span<std::byte> rest, Scrambler& scrambler) {
  while (rest.size() > 4) {
    const auto size = std::to_integer<std::size_t>(rest[2]) | std::to_integer<std::size_t>(rest[3])
                                                                  << 8;
    scrambler.Scramble(rest.subspan(4, size));
    rest = rest.subspan(4 + size);
  }
}

/// As menu construction does it: one node and one record an item.
void Read(const std::wstring& path, const CodePage& codePage, const clsOrvaneDataTools& tools) {
  CommandTable commands;
  DefinitionFile file(BareFile(path), codePage, &commands.Memory());
  clsFileHeader header;
  tools.File_ReadVersion(file);
  tools.File_ReadHeader(file, header);
  for (std::int32_t i = 0; i < header.ItemCount; ++i) {
    const auto record = commands.NewRecord();
    commands.Add(record);
    std::int32_t parent = 0;
    tools.File_ReadItemHeader(file, parent, *record);
    tools.ReadData(file, *record);
  }
}

}  // namespace

void BenchDefinition(Scene& scene) {
  constexpr int ItemsOfAMegabyte = 15'000;
  const std::wstring path = scene.Path(L"Large.cfg");
  WriteFileItems(path, ItemsOfAMegabyte);
  memory::Desktop desktop;
  const CodePage codePage(desktop.system.AnsiCharacters());
  const clsOptions options;
  Scrambler scrambler(L"QWXKRTZPV");
  const clsOrvaneDataTools tools(options, codePage, scrambler, desktop.shell);
  const auto read = [&] { Read(path, codePage, tools); };
  const auto decipher = [&] {
    std::vector<std::byte> bytes = BareFile(path);
    Decipher(bytes, scrambler);
  };
  Compare("definition file of 1 MB", 40, read, decipher);
}

}  // namespace orvane::host
