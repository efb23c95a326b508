#include "RegFileSettings.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "Host.h"
#include "HostFile.h"
#include "support/Error.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {

using memory::RegFileChange;

std::vector<RegFileChange> ReadRegFile(const std::string& file) {
  const std::string content = ReadHostFile(file);
  try {
    return memory::ReadRegFile(std::as_bytes(std::span(content)));
  } catch (const Error& error) {
    throw std::runtime_error(file + ": " + ToUtf8(error.Description()));
  }
}

bool IsChangeOf(const RegFileChange& change, const Setting& setting) {
  const bool isValue =
      change.kind == RegFileChange::Kind::Set || change.kind == RegFileChange::Kind::RemoveValue;
  return isValue && change.hive == Hive::CurrentUser &&
         LowerCase(change.path + L"\\") == LowerCase(SettingsKey) &&
         LowerCase(change.name) == LowerCase(setting.value);
}

RegFileChange ChangeTo(const Setting& setting, RegistryValue value) {
  const std::wstring_view key = SettingsKey;
  return {.kind = RegFileChange::Kind::Set,
          .path = std::wstring(key.substr(0, key.size() - 1)),
          .name = setting.value,
          .value = std::move(value)};
}

RegFileSettings::RegFileSettings(std::string file) : m_file(std::move(file)) {
  if (m_file == StandardStream || std::filesystem::exists(HostPath(m_file)))
    m_content = ReadRegFile(m_file);
  memory::ApplyRegFile(m_content, m_registry);
}

void RegFileSettings::Apply(std::span<const SettingChange> changes) {
  for (const SettingChange& change : changes) {
    std::erase_if(m_content,
                  [&](const RegFileChange& old) { return IsChangeOf(old, *change.setting); });
    if (change.value) m_content.push_back(ChangeTo(*change.setting, *change.value));
  }
  WriteHostFile(m_file, memory::FormatRegFile(m_content));
}

std::unique_ptr<SettingsStore> OpenSettingsFile(const std::string& file) {
  return std::make_unique<RegFileSettings>(file);
}

}  // namespace orvane::tool
