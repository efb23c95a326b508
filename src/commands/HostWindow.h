#pragma once

#include "platform/Windows.h"

namespace orvane {

// Which program asked for the menu: walks from a window to the top over its parents.

/// The nearest window of an Explorer folder frame ("CabinetWClass", once "ExploreWClass") at or
/// above `window`, or None.
WindowHandle GetRootExplorerWindow(Windows& windows, WindowHandle window);

/// The nearest dialog of an office program (class beginning with "bosa_sdm"), or None.
WindowHandle GetRootOfficeWindow(Windows& windows, WindowHandle window);

/// Whether any window on the way is a browser frame ("IEFrame").
bool IsIE(Windows& windows, WindowHandle window);

}  // namespace orvane
