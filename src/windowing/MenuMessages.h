#pragma once

#include <windows.h>

#include "shellext/OpenMenu.h"

namespace orvane::windowing {

// The messages that the shell, or whoever shows the menu, passes on while it is open.

/// The older form, which only logs: its users get the newer one's messages as well.
void HandleMenuMsg(UINT message, WPARAM wParam, LPARAM lParam);

/// Measuring, painting and the opening of a submenu; any other message only logs.
void HandleMenuMsg2(OpenMenu& menu, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace orvane::windowing
