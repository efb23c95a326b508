#pragma once

#include <windows.h>

#include "designerapp/Handles.h"

namespace orvane::designerapp {

/// Dots per inch of the screen that the window is on.
UINT DpiOf(HWND window);

/// A length given for 96 dots per inch.
inline int Scaled(int length, UINT dpi) {
  return MulDiv(length, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
}

/// The font of the system's message boxes in the size for that resolution; null when there is none.
UniqueFont MessageFont(UINT dpi);

/// Room that a text in the font takes, in pixels.
SIZE SizeOfText(HWND window, HFONT font, const wchar_t* text);

}  // namespace orvane::designerapp
