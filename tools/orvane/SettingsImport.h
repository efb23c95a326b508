#pragma once

#include <span>
#include <vector>

#include "SettingsStore.h"
#include "memory/RegFile.h"

namespace orvane::tool {

/// What an export changes of the settings.
struct SettingsImport {
  std::vector<SettingChange> changes;
  std::size_t leftOut = 0;  // what stands in keys below: lists, and what the designer keeps
};

/// std::runtime_error when the export asks for anything that is no setting, or for a value that a
/// setting cannot have.
SettingsImport ReadSettings(std::span<const memory::RegFileChange> content);

}  // namespace orvane::tool
