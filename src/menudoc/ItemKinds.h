#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "menudata/clsOrvaneData.h"

namespace orvane::tool {

/// A number of the menu definition file and its name in the readable document.
struct NamedNumber {
  std::string_view name;
  std::int32_t number;
};

inline constexpr NamedNumber TypeNames[] = {
    {"root", clsOrvaneData::TypeRoot},
    {"folder", clsOrvaneData::TypeFolder},
    {"popup", clsOrvaneData::TypePopupMenu},
    {"separator", clsOrvaneData::TypeSeparator},
    {"file", clsOrvaneData::TypeFile},
    {"customAction", clsOrvaneData::TypeCustomAction},
    {"selectionTask", clsOrvaneData::TypeSelectionTask},
    {"dynamicFolder", clsOrvaneData::TypeDynamicFolder},
    {"copyTo", clsOrvaneData::TypeCopyToX},
};

inline constexpr NamedNumber OptionNames[] = {
    {"leaf", clsOrvaneData::OptionsLeaf},
    {"exploreInNewWindow", clsOrvaneData::OptionsExploreInNewWindow},
    {"csidl", clsOrvaneData::OptionsCSIDL},
    {"browseAndOpen", clsOrvaneData::OptionsBrowseAndOpen},
};

inline constexpr NamedNumber SelectionOptionNames[] = {
    {"showAlways", clsOrvaneData::SelectionOptions_ShowAlways},
    {"showSingle", clsOrvaneData::SelectionOptions_ShowSingle},
    {"showMultiple", clsOrvaneData::SelectionOptions_ShowMultiple},
    {"recurse", clsOrvaneData::SelectionOptions_Recurse},
    {"clipboard", clsOrvaneData::SelectionOptions_Clipboard},
    {"fullPaths", clsOrvaneData::SelectionOptions_FQP},
    {"quoteIfBlank", clsOrvaneData::SelectionOptions_QIS},
    {"shortNames", clsOrvaneData::SelectionOptions_ShortNames},
};

inline constexpr NamedNumber CopyOptionNames[] = {
    {"move", clsOrvaneData::CopyToXOptions_Move},
};

/// The names of the bits of a number value; none for a value whose bits have no names.
inline std::span<const NamedNumber> BitNamesOf(std::string_view value) {
  if (value == "options") return OptionNames;
  if (value == "selectionOptions") return SelectionOptionNames;
  if (value == "copyOptions") return CopyOptionNames;
  return {};
}

}  // namespace orvane::tool
