// Entries of the recently-used lists: any text unpacks without a crash, and what was unpacked packs
// and unpacks to itself.

#include <cstdint>
#include <cstdlib>
#include <span>

#include "memory/Desktop.h"
#include "menudata/clsMRU.h"
#include "menudata/clsOrvaneDataTools.h"

namespace {

using namespace orvane;

struct Reader {
  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  Scrambler scrambler;
  clsOptions options;
  clsOrvaneDataTools tools{options, codePage, scrambler, desktop.shell};

  void Try(const std::wstring& entry) {
    clsOrvaneData item;
    tools.BreakdownHistoryMRU(entry, item);
    clsOrvaneData again;
    tools.BreakdownHistoryMRU(tools.CreateHistoryMRU(item), again);
    const bool same = again.m_lType == item.m_lType && again.m_lOptions == item.m_lOptions &&
                      again.Location() == item.Location() && again.Caption() == item.Caption() &&
                      again.m_szAction_Actions == item.m_szAction_Actions;
    if (!same) std::abort();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Reader reader;
  const std::wstring text = reader.codePage.Decode(std::as_bytes(std::span(data, size)));
  reader.Try(text);
  reader.Try(reader.scrambler.Scramble(text, reader.codePage));
  if (clsMRU::GetShortenedName(text).size() > text.size() + 3) std::abort();
  return 0;
}
