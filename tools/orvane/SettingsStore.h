#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "menudata/SettingsTable.h"
#include "platform/Registry.h"

namespace orvane::tool {

/// A setting's new value, or none for its default.
struct SettingChange {
  const Setting* setting;
  std::optional<RegistryValue> value;
};

/// Where settings are kept: the user's registry, or a registry export.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// What the menu would read.
  virtual Registry& Values() = 0;

  /// std::runtime_error when something could not be written.
  virtual void Apply(std::span<const SettingChange> changes) = 0;
};

/// The settings of a registry export, which need not be there yet. std::runtime_error when it is
/// none.
std::unique_ptr<SettingsStore> OpenSettingsFile(const std::string& file);

/// The settings of the user. std::runtime_error where there is no registry.
std::unique_ptr<SettingsStore> OpenUserSettings();

}  // namespace orvane::tool
