#pragma once

#include <string>

namespace orvane::designerapp {

/// The file or folder that a shortcut points at, there or not; empty when it points at none.
std::wstring TargetOfShortcut(const std::wstring& shortcut);

}  // namespace orvane::designerapp
