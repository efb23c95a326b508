#pragma once

#include <string>
#include <vector>

#include "menudoc/Finding.h"

namespace orvane::tool {

// Findings as a command prints them.

/// Texts of the user's may hold anything; this one is a line.
std::string OnOneLine(std::string text);
/// A line for each: place, severity, what is wrong, what to do.
std::string FindingsText(const std::vector<Finding>& findings);
/// A JSON list of objects with place, severity ("error" or "warning"), text and remedy.
std::string FindingsJson(const std::vector<Finding>& findings);
/// 0 without findings, 1 for warnings, 2 with an error among them.
int FindingsExitCode(const std::vector<Finding>& findings);

}  // namespace orvane::tool
