#pragma once

#include <string>

#include "platform/MessageBoxes.h"
#include "support/Error.h"

namespace orvane {

/// Tells the user what went wrong.
void Warn(MessageBoxes& boxes, const std::wstring& text);

// The thread's pending error, for routines that report a failure without throwing. A thread without
// a handler has none.
void SetPendingError(PendingError error);
PendingError GetPendingError();

/// Tells the user of the pending error, if there is one that opening `path` left. Errors with a
/// negative number are passed over.
void WarnOfPendingError(MessageBoxes& boxes, const std::wstring& path);

}  // namespace orvane
