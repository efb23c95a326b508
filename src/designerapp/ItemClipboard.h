#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace orvane::designerapp {

/// The text on the clipboard; none without one, and when another program keeps it open.
std::optional<std::wstring> ClipboardText(HWND owner);

}  // namespace orvane::designerapp
