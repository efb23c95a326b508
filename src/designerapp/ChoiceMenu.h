#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orvane::designerapp {

/// Lets the user choose one of the texts from a menu below the button; none when he gives up.
std::optional<std::size_t> ChooseText(HWND button, const std::vector<std::wstring>& texts);

}  // namespace orvane::designerapp
