#pragma once

#include <string>

#include "platform/FileSystem.h"
#include "platform/Registry.h"

namespace orvane::designer {

/// The folder of the DLL that shows the menu, where its files lie unless the settings name others:
/// the designer's own folder when the DLL is there, else that of the registered one. The designer's
/// own when there is none.
std::wstring MenuHome(FileReader& files, Registry& registry, const std::wstring& ownFolder);

}  // namespace orvane::designer
