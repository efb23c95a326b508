#pragma once

#include <windows.h>

#include <vector>

namespace orvane::windowing {

/// The module's extended dialog template with the font of the system's message boxes in place of
/// its own, so that the dialog has the size and the look of its neighbours at every resolution.
/// Empty when there is none.
std::vector<WORD> TemplateInMessageFont(HINSTANCE module, int resource);

}  // namespace orvane::windowing
