#pragma once

#include <string>

#include "commands/frmCopyTo.h"
#include "platform/DataObject.h"
#include "platform/FileOperations.h"

namespace orvane {

/// Copies or moves the selection in one operation of the shell. An empty szDestination asks the
/// user; any other is used as it is, whether it exists or not.
void CopyOrMoveSelection(const frmCopyTo::Services& services, FileOperations& operations,
                         WindowHandle window, DataObject* dataObject, bool bCopy,
                         const std::wstring& szDestination);

}  // namespace orvane
