#include "commands/RecentItems.h"

#include "support/Trace.h"

namespace orvane {

void Remember(const CommandContext& context, clsMRU& list, const clsOrvaneData& item) {
  const CodePage& page = context.codePage;
  if (page.Spells(item.Location()) && page.Spells(item.Caption()))
    list.Remember(context.tools.CreateHistoryMRU(item));
  else
    Log(L"Not in the code page: ", item.Location());
}

}  // namespace orvane
