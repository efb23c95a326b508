#pragma once

#include <set>
#include <string>

namespace orvane::host {

/// The names of the DLLs in a program file's import table, in lower case. Throws runtime_error when
/// the file is no 64-bit program file.
std::set<std::string> ImportedDlls(const std::wstring& path);

}  // namespace orvane::host
