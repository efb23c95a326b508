#pragma once

#include <cstdint>

#include "platform/Menus.h"

namespace orvane {

/// What a typed character does in an open menu that is drawn by its owner, whom Windows asks
/// (WM_MENUCHAR): the result for the message. The one entry of which it is the marked letter, or
/// failing that the first one, is chosen; of several the next after the highlighted one is
/// highlighted; 0 without any.
std::intptr_t AnswerMenuChar(Menus& menus, MenuHandle menu, wchar_t character);

}  // namespace orvane
