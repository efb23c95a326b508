#pragma once

#include <windows.h>

#include "platform/Registry.h"

namespace orvane::designerapp {

// Where the window stands, from one run to the next.

/// False when it is not known, or would not be seen on the screens that there are.
bool RestorePlacement(HWND window, Registry& registry, int show);
void SavePlacement(HWND window, Registry& registry);

}  // namespace orvane::designerapp
