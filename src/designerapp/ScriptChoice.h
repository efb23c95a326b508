#pragma once

#include <string>

#include "designerapp/Program.h"

namespace orvane::designerapp {

/// The script of a custom action that the user chooses by its name, from a menu below the button;
/// empty when he gives up. Error when the actions cannot be read or there are none.
std::wstring AskScript(HWND button, Program& program);

}  // namespace orvane::designerapp
