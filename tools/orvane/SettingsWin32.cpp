#include <windows.h>

#include <stdexcept>

#include "SettingsStore.h"
#include "support/Utf8.h"
#include "win32/Registry.h"

namespace orvane::tool {
namespace {

/// The user's registry.
class RegistrySettings : public SettingsStore {
 public:
  Registry& Values() override { return m_registry; }

  void Apply(std::span<const SettingChange> changes) override {
    std::unique_ptr<RegistryKey> key;
    Check(m_registry.OpenToWrite(Hive::CurrentUser, SettingsKey, key), SettingsKey);
    for (const auto& [setting, value] : changes) {
      LSTATUS result = ERROR_SUCCESS;
      if (value)
        result = key->Write(setting->value, *value);
      else
        result = RegDeleteKeyValueW(HKEY_CURRENT_USER, SettingsKey, setting->value);
      if (result != ERROR_FILE_NOT_FOUND) Check(result, setting->value);
    }
  }

 private:
  static void Check(LSTATUS result, const wchar_t* what) {
    if (result != ERROR_SUCCESS)
      throw std::runtime_error("the registry refuses " + ToUtf8(what) + " with error " +
                               std::to_string(result));
  }

  win32::Registry m_registry;
};

}  // namespace

std::unique_ptr<SettingsStore> OpenUserSettings() {
  return std::make_unique<RegistrySettings>();
}

}  // namespace orvane::tool
