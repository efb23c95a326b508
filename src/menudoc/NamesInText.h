#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "menudoc/DocumentSources.h"
#include "platform/Shell.h"

namespace orvane {

// Names between percent signs, as paths in a document have them: %NAME% stands for the name's value
// and %% for one percent sign. Names are letters, digits and _ and begin with a letter; a percent
// sign before anything else is one.

struct ExpandedText {
  std::wstring text;
  std::wstring unknown;  // the first name that stands for nothing; empty when all were found
};

ExpandedText ExpandNames(std::wstring_view text, const DocumentSources& sources);
/// A text that ExpandNames turns into the one given.
std::wstring EscapeNames(std::wstring_view text);

/// Path of the current user's special folder of that name; none when there is no such folder or it
/// has no path.
std::optional<std::wstring> SpecialFolderPath(Shell& shell, std::wstring_view name);

}  // namespace orvane
