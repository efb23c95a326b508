#pragma once

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <optional>

#include "commands/CommandDispatch.h"
#include "support/CodePage.h"

namespace orvane::server {

/// What an invocation record asks for, in its short or its extended form. Reads no byte past the
/// record's declared size, of which 0 means the short form's; none when it is too small for that.
std::optional<InvokeRequest> ReadInvokeRecord(const CMINVOKECOMMANDINFO& record,
                                              const CodePage& codePage);

}  // namespace orvane::server
