#pragma once

#include <string>

namespace orvane::win32 {

/// What the shell may be told to open for `file`. A bare name becomes the full path of the program
/// that is registered under it (App Paths), or that lies in the system's folders, in PATH or in
/// `directory`: the shell itself would look in the current directory, often the very folder that is
/// shown. Full paths and addresses stay as they are. Empty when nothing is found, and for a missing
/// path with a blank, of which the first part alone would be tried.
std::wstring ProgramPath(const std::wstring& file, const std::wstring& directory);

}  // namespace orvane::win32
