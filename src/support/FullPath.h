#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// Whether the path names its place by itself ("C:\...", "\\server\..."), whatever the current
/// directory.
constexpr bool IsFullPath(std::wstring_view path) {
  return path.starts_with(L"\\\\") ||
         (path.size() > 2 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/'));
}

/// The path without the prefix that lifts the limit on its length: "\\?\C:\a" is "C:\a",
/// "\\?\UNC\server\share" is "\\server\share".
inline std::wstring WithoutLongPrefix(std::wstring_view path) {
  constexpr std::wstring_view LongPrefix = L"\\\\?\\", LongSharePrefix = L"\\\\?\\UNC\\";
  if (path.starts_with(LongSharePrefix))
    return L"\\\\" + std::wstring(path.substr(LongSharePrefix.size()));
  return std::wstring(path.substr(path.starts_with(LongPrefix) ? LongPrefix.size() : 0));
}

}  // namespace orvane
