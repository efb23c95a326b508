#pragma once

#include <string>

namespace orvane::win32 {

/// The path as the file calls take it: one that is too long for their usual limit of 260 characters
/// becomes absolute, with the prefix that lifts it.
std::wstring NativePath(const std::wstring& path);

/// True for a path on a share, or on a drive that stands for one.
bool IsOnNetwork(const std::wstring& path);

}  // namespace orvane::win32
