#pragma once

#include <windows.h>

#include "shellext/ContextMenuHandler.h"

namespace orvane::windowing {

/// Hands a message of an open menu to the handler: Windows' structures go in and come back as the
/// handler's portable ones. `result` may be null.
void ForwardMenuMessage(ContextMenuHandler& handler, UINT message, WPARAM wParam, LPARAM lParam,
                        LRESULT* result);

}  // namespace orvane::windowing
