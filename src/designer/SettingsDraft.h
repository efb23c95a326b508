#pragma once

#include <string>
#include <vector>

#include "menudata/SettingsTable.h"

namespace orvane::designer {

/// One control of the settings' window: a whole setting, or one of the bits that are its value.
struct SettingRow {
  enum class Kind { Check, Choice, Number, File };

  const Setting* setting = nullptr;
  const Setting::Name* bit = nullptr;  // null: the whole setting
  Kind kind = Kind::Check;

  std::wstring Label() const;
  /// What a choice offers, in words.
  std::vector<std::wstring> Choices() const;
  /// It has one value and no other.
  bool IsFixed() const { return setting->least == setting->most; }
};

/// The settings while a user changes them. Nothing counts before Save.
class SettingsDraft {
 public:
  static constexpr std::size_t Pages = 3;
  static const wchar_t* TitleOf(std::size_t page);
  static std::vector<SettingRow> Rows(std::size_t page);

  SettingsDraft(const clsOptions& stored, const clsOptions& defaults)
      : m_stored(stored), m_defaults(defaults), m_now(stored) {}

  /// 1 for a check box that is on; the place of what is chosen, -1 for a number without a name.
  int Choice(const SettingRow& row) const { return ChoiceOf(row, m_now); }
  void Choice(const SettingRow& row, int choice);
  /// The number or the file's path. Error, which says what is possible, for one that cannot be.
  std::wstring Text(const SettingRow& row) const { return TextOf(row, m_now); }
  void Text(const SettingRow& row, const std::wstring& text);

  bool IsDefault(const SettingRow& row) const;
  void ToDefault(const SettingRow& row);
  /// The meaning, and what the default is.
  std::wstring Help(const SettingRow& row) const;
  bool IsChanged() const;

  /// Writes the settings that were changed here, over what `current` was read as meanwhile, and
  /// leaves there what is stored. Error when the registry does not take them.
  void Save(const SettingsServices& services, clsOptions& current) const;

 private:
  static int ChoiceOf(const SettingRow& row, const clsOptions& options);
  static std::wstring TextOf(const SettingRow& row, const clsOptions& options);
  bool IsChanged(const Setting& setting) const;

  clsOptions m_stored;
  clsOptions m_defaults;
  clsOptions m_now;
};

}  // namespace orvane::designer
