#pragma once

#include <windows.h>

#include <string>

namespace orvane::host {

/// The menu as indented text: two spaces a level, "--------" for a separator, " >" after a popup's
/// caption, "(disabled)" after a disabled entry.
std::wstring MenuText(HMENU menu, int level = 0);

/// Number of entries in the menu and its submenus that a user can choose.
int CountCommands(HMENU menu);

}  // namespace orvane::host
