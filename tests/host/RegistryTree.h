#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace orvane::host {

/// Everything below a key, sorted: one line a key, "path", and one a value, "path@name=text" (a
/// value that is no text shows its bytes' number).
std::vector<std::wstring> RegistryTree(HKEY hive, const std::wstring& path);

}  // namespace orvane::host
