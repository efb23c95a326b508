#pragma once

#include <span>
#include <string>

#include "menudata/SettingsTable.h"

namespace orvane::tool {

/// Everything about the settings as "markdown", or as the two files of a group policy: "admx" and,
/// with the texts, "adml".
std::string DescribeSettings(const std::string& form);

/// A group of settings with its heading.
struct SettingsPage {
  Setting::Page page;
  const char* name;
  const char* heading;
};
std::span<const SettingsPage> SettingsPages();

/// The two files of a group policy.
std::string PolicyDefinitions();
std::string PolicyTexts();

}  // namespace orvane::tool
