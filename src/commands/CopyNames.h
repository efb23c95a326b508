#pragma once

#include "platform/DataObject.h"
#include "platform/Handles.h"
#include "platform/Platform.h"

namespace orvane {

/// Puts the selected names on the clipboard, a line for each. With `recursive` everything inside
/// selected folders too, behind the progress window; what was found when the user cancels is kept.
/// Error when the selection cannot be read or the clipboard cannot be had.
void CopyNamesToClipboard(const Platform& platform, WindowHandle window, DataObject* selection,
                          bool shortNames, bool recursive);

}  // namespace orvane
