#pragma once

#include <string>
#include <variant>

#include "menudata/SettingsTable.h"
#include "platform/Registry.h"

namespace orvane::tool {

/// A text, a truth or a number, as the setting's field is.
using SettingValue = std::variant<std::wstring, bool, std::int32_t>;

SettingValue ValueOf(const clsOptions& options, const Setting& setting);

/// "yes", a number or its names joined by commas, a text as it is; and back. std::runtime_error,
/// which says what is possible, for anything else.
std::string SettingText(const Setting& setting, const SettingValue& value);
SettingValue ParseSetting(const Setting& setting, const std::string& text);

/// As the registry keeps it, and back. std::runtime_error for a value that is not of the setting's
/// kind, or that the setting cannot have.
RegistryValue ToRegistry(const SettingValue& value);
SettingValue FromRegistry(const Setting& setting, const RegistryValue& value);

/// The values under the settings' key; what is missing there, or no value of that kind, has the
/// default.
clsOptions LoadSettings(Registry& values, SystemInfo& system);

/// "text", "yes or no", "number", "choice" or "flags".
const char* KindName(const Setting& setting);

}  // namespace orvane::tool
