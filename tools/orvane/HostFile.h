#pragma once

#include <string>

namespace orvane::tool {

/// The bytes of a file of this machine. std::runtime_error when it cannot be read.
std::string ReadHostFile(const std::string& path);

}  // namespace orvane::tool
