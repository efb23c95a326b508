#include "SettingsImport.h"

#include <algorithm>
#include <stdexcept>

#include "SettingText.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using memory::RegFileChange;
using Kind = RegFileChange::Kind;

enum class Where { Here, Below, Elsewhere };

Where PlaceOf(const RegFileChange& change) {
  const std::wstring path = LowerCase(change.path) + L"\\";
  const std::wstring key = LowerCase(SettingsKey);
  if (change.hive != Hive::CurrentUser || !path.starts_with(key)) return Where::Elsewhere;
  return path == key ? Where::Here : Where::Below;
}

void Add(std::vector<SettingChange>& changes, SettingChange change) {
  std::erase_if(changes, [&](const SettingChange& old) { return old.setting == change.setting; });
  changes.push_back(std::move(change));
}

void AddValue(std::vector<SettingChange>& changes, const RegFileChange& change) {
  const Setting* setting = FindSetting(change.name);
  if (!setting) throw std::runtime_error("\"" + ToUtf8(change.name) + "\" is no setting");
  if (change.kind == Kind::RemoveValue) return Add(changes, {setting, std::nullopt});
  FromRegistry(*setting, change.value);
  Add(changes, {setting, change.value});
}

}  // namespace

SettingsImport ReadSettings(std::span<const RegFileChange> content) {
  SettingsImport result;
  for (const RegFileChange& change : content) {
    const Where where = PlaceOf(change);
    if (where == Where::Elsewhere)
      throw std::runtime_error("\"" + ToUtf8(change.path) + "\" is not the settings' key");
    if (where == Where::Below)
      result.leftOut += change.kind == Kind::AddKey ? 0 : 1;
    else if (change.kind == Kind::RemoveKey)
      for (const Setting& setting : Settings()) Add(result.changes, {&setting, std::nullopt});
    else if (change.kind != Kind::AddKey)
      AddValue(result.changes, change);
  }
  return result;
}

}  // namespace orvane::tool
