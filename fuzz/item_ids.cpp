// Item-identifier lists as a folder that is clicked on: any bytes are taken or refused, by the
// shell in memory and by the handler, and what has a path leads back to it.

#include <cstdint>
#include <cstdlib>

#include "memory/Desktop.h"
#include "shellext/ContextMenuHandler.h"

namespace {

using namespace orvane;

void Click(memory::Desktop& desktop, const ItemIdList& folder) {
  ModuleGlobals globals(desktop.Bundle());
  ContextMenuHandler handler(globals);
  if (handler.IShellExtInit_Initialize(folder, nullptr, 0) != 0) std::abort();
  if (handler.State().selection.folder != desktop.shell.Path(folder)) std::abort();
  const MenuHandle menu = desktop.menus.CreatePopup();
  handler.IContextMenu_QueryContextMenuEx(menu, 0, 1, 100, 0);
  desktop.menus.Destroy(menu);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = std::as_bytes(std::span(data, size));
  const ItemIdList list{{bytes.begin(), bytes.end()}};
  memory::Desktop desktop;
  const std::wstring path = desktop.shell.Path(list);
  desktop.shell.DisplayName(list);
  if (const ItemIdList again = memory::Shell::ItemOf(path); again && !path.empty()) {
    const std::wstring same = desktop.shell.Path(again);
    if (memory::Shell::ItemOf(same) != again) std::abort();
  }
  Click(desktop, list);
  return 0;
}
