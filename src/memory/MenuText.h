#pragma once

#include <string>

#include "memory/Menus.h"

namespace orvane::memory {

/// The menu as indented text, a line an entry: two spaces a level, "--------" for a separator, " >"
/// after a popup's caption, " (disabled)" after an entry that cannot be chosen. Submenus follow
/// their entry.
std::wstring MenuText(const Menus& menus, MenuHandle menu);

}  // namespace orvane::memory
