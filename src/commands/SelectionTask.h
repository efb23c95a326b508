#pragma once

#include "commands/CommandContext.h"

namespace orvane {

/// Turns the selection into the task's two lists and hands them on: to the clipboard, to the
/// selection file, to a program. Shift walks selected folders behind the progress window, Ctrl asks
/// for short names, as the item's options do. The item's prefixes and suffixes lose their backslash
/// escapes for good.
void ExecuteSelectionTask(const CommandContext& context, WindowHandle window, clsOrvaneData& item,
                          bool bShift, bool bCtrl);

}  // namespace orvane
