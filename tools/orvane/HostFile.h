#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace orvane::tool {

/// What stands for standard input or output in place of a file's name.
inline constexpr const char* StandardStream = "-";

/// The bytes of a file of this machine. std::runtime_error when it cannot be read.
std::string ReadHostFile(const std::string& path);

/// Puts the bytes in the file's place at once, so that a failure leaves the old ones. Its mode
/// stays and a link stays one; what is no file, such as a device, is written as it is.
/// std::runtime_error when that cannot be done.
void WriteHostFile(const std::string& path, std::span<const std::byte> bytes);

/// True when both names lead to one file that is there.
bool IsSameHostFile(const std::string& one, const std::string& other);

}  // namespace orvane::tool
