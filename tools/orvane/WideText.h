#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "support/Utf8.h"

namespace orvane::tool {

/// A text of the command line. std::runtime_error when it is not UTF-8.
inline std::wstring WideText(const std::string& text) {
  if (auto wide = FromUtf8(text)) return *std::move(wide);
  throw std::runtime_error("\"" + text + "\" is not UTF-8");
}

}  // namespace orvane::tool
