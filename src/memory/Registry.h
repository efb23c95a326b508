#pragma once

#include <map>
#include <optional>
#include <set>
#include <utility>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "memory/SystemInfo.h"
#include "platform/Registry.h"

namespace orvane::memory {

/// A registry in memory. Values are kept as the bytes that were written. Left out: security (but
/// Deny), links, and the merged view of HKEY_CLASSES_ROOT. Values that the component writes are
/// recorded as effects ("RegSet"); those that a test puts there are not.
class Registry : public orvane::Registry {
 public:
  Registry(Effects& effects, Faults& faults, SystemInfo& system)
      : m_effects(effects), m_faults(faults), m_system(system) {}

  std::int32_t OpenToRead(Hive hive, const std::wstring& path,
                          std::unique_ptr<RegistryKey>& key) override;
  std::int32_t OpenToWrite(Hive hive, const std::wstring& path,
                           std::unique_ptr<RegistryKey>& key) override;

  // For tests and the import of exports.
  void AddKey(Hive hive, const std::wstring& path);
  void Set(Hive hive, const std::wstring& path, const std::wstring& name, RegistryValue value);
  void SetText(Hive hive, const std::wstring& path, const std::wstring& name,
               std::wstring_view text);
  void SetNumber(Hive hive, const std::wstring& path, const std::wstring& name,
                 std::uint32_t number);
  std::optional<RegistryValue> Find(Hive hive, const std::wstring& path, const std::wstring& name);
  std::optional<std::wstring> FindText(Hive hive, const std::wstring& path,
                                       const std::wstring& name);
  std::optional<std::uint32_t> FindNumber(Hive hive, const std::wstring& path,
                                          const std::wstring& name);
  void RemoveKey(Hive hive, const std::wstring& path);  // with the keys below it
  void RemoveValue(Hive hive, const std::wstring& path, const std::wstring& name);
  bool HasKey(Hive hive, const std::wstring& path) const;

  /// From now on the key cannot be opened (ERROR_ACCESS_DENIED).
  void Deny(Hive hive, const std::wstring& path);

 private:
  class Key;
  using KeyName = std::pair<Hive, std::wstring>;  // lower-cased, no backslash at its end
  using Values = std::map<std::wstring, RegistryValue>;

  Values* FindKey(const KeyName& name);

  Effects& m_effects;
  Faults& m_faults;
  SystemInfo& m_system;
  std::map<KeyName, Values> m_keys;
  std::set<KeyName> m_denied;
};

}  // namespace orvane::memory
