#pragma once

#include <string_view>

#include "menudoc/MenuDocument.h"

namespace orvane::designer {

// Menu documents that must be right. DocumentError for a text with errors: the first one, with its
// place.

Definition MenuOfText(std::string_view text);
/// What CopyText makes, or a whole document.
Definition ItemsOfText(std::string_view text);

}  // namespace orvane::designer
