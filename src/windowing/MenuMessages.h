#pragma once

#include <windows.h>

#include "shellext/OpenMenu.h"

namespace orvane::windowing {

// The messages that the shell, or whoever shows the menu, passes on while it is open.

/// The older form: does the same, for programs that know no other.
void HandleMenuMsg(OpenMenu& menu, UINT message, WPARAM wParam, LPARAM lParam);

/// Measuring, painting, the opening of a submenu and letters typed in it; any other message only
/// logs. The message's result.
LRESULT HandleMenuMsg2(OpenMenu& menu, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace orvane::windowing
