#pragma once

#include <string>
#include <vector>

#include "SettingsStore.h"
#include "memory/RegFile.h"

namespace orvane::tool {

/// Settings in a registry export. What else the file holds stays in it.
class RegFileSettings : public SettingsStore {
 public:
  explicit RegFileSettings(std::string file);

  Registry& Values() override { return m_registry; }
  void Apply(std::span<const SettingChange> changes) override;

 private:
  std::string m_file;
  std::vector<memory::RegFileChange> m_content;
  memory::Effects m_effects;
  memory::Faults m_faults;
  memory::SystemInfo m_system;
  memory::Registry m_registry{m_effects, m_faults, m_system};
};

/// What a registry export asks for. std::runtime_error when the file is none.
std::vector<memory::RegFileChange> ReadRegFile(const std::string& file);

/// True for a change of that value of the settings' key.
bool IsChangeOf(const memory::RegFileChange& change, const Setting& setting);

/// What an export holds that gives the setting this value.
memory::RegFileChange ChangeTo(const Setting& setting, RegistryValue value);

}  // namespace orvane::tool
