#pragma once

#include <cstdint>
#include <string>

#include "platform/Menus.h"

namespace orvane {

/// Whether the menu holds an entry of that caption, letter for letter, at `lStartingPos` or behind
/// it, or anywhere in the submenus of those.
bool IsCaptionInMenu(Menus& menus, const std::wstring& szRootMenuCaption, MenuHandle hMenu,
                     std::int32_t lStartingPos);

}  // namespace orvane
