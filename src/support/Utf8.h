#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

std::string ToUtf8(std::wstring_view text);

/// None when the bytes are not UTF-8.
std::optional<std::wstring> FromUtf8(std::string_view bytes);

}  // namespace orvane
