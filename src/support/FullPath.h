#pragma once

#include <string_view>

namespace orvane {

/// Whether the path names its place by itself ("C:\...", "\\server\..."), whatever the current
/// directory.
constexpr bool IsFullPath(std::wstring_view path) {
  return path.starts_with(L"\\\\") ||
         (path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/'));
}

}  // namespace orvane
