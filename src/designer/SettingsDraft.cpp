#include "designer/SettingsDraft.h"

#include <algorithm>
#include <memory>

#include "menudata/RegistryAccess.h"
#include "support/Error.h"
#include "support/FullPath.h"
#include "support/Text.h"

namespace orvane::designer {
namespace {

using Kind = SettingRow::Kind;
using Text = std::wstring clsOptions::*;
using Truth = bool clsOptions::*;
using Number = std::int32_t clsOptions::*;

constexpr const wchar_t* Titles[SettingsDraft::Pages] = {L"Menu", L"Lists and Files",
                                                         L"Logs and Designer"};

/// Two pages of the table are one of the window.
std::size_t PageOf(const Setting& setting) {
  return static_cast<std::size_t>(setting.page) / 2;
}

Kind KindOf(const Setting& setting) {
  if (std::holds_alternative<Text>(setting.field)) return Kind::File;
  if (std::holds_alternative<Truth>(setting.field)) return Kind::Check;
  return setting.names.empty() ? Kind::Number : Kind::Choice;
}

std::wstring AsSentence(std::wstring text) {
  if (!text.empty()) text.front() = UpperCase(text.front());
  return text;
}

bool AreSame(const Setting& setting, const clsOptions& a, const clsOptions& b) {
  return std::visit([&](auto field) { return a.*field == b.*field; }, setting.field);
}

void Copy(const Setting& setting, const clsOptions& from, clsOptions& to) {
  std::visit([&](auto field) { to.*field = from.*field; }, setting.field);
}

std::int32_t NumberOf(const Setting& setting, const std::wstring& text) {
  wchar_t* end = nullptr;
  const long long number = std::wcstoll(text.c_str(), &end, 10);
  if (!text.empty() && !*end && number >= setting.least && number <= setting.most)
    return static_cast<std::int32_t>(number);
  throw Error(Error::InvalidArgument, std::wstring(setting.title) + L" takes a number from " +
                                          std::to_wstring(setting.least) + L" to " +
                                          std::to_wstring(setting.most) + L'.');
}

/// Each program that shows the menu has another current directory.
std::wstring FileOf(const Setting& setting, const std::wstring& text) {
  std::wstring path(Trim(text));
  if (IsFullPath(path)) return path;
  throw Error(Error::InvalidArgument,
              std::wstring(setting.title) +
                  L" takes a path with its drive and folders, such as C:\\Menus\\File.txt.");
}

/// Where the value is not among those that the menu's own routine saves.
bool IsOurs(const Setting& setting) {
  return setting.use == Setting::Use::LoadOnly;
}

void WriteOurs(const Setting& setting, RegistryKey& key, const clsOptions& options) {
  std::visit([&](auto field) { WriteValue(key, setting.value, options.*field); }, setting.field);
}

bool IsStored(const Setting& setting, RegistryKey& key, const clsOptions& options) {
  clsOptions read;
  const auto value = [&](auto field) { return ReadValue(key, setting.value, read.*field); };
  return std::visit(value, setting.field) == 0 && AreSame(setting, read, options);
}

}  // namespace

std::wstring SettingRow::Label() const {
  return bit ? AsSentence(bit->meaning) : setting->title;
}

std::vector<std::wstring> SettingRow::Choices() const {
  std::vector<std::wstring> choices;
  for (const Setting::Name& name : setting->names) choices.push_back(AsSentence(name.meaning));
  return choices;
}

const wchar_t* SettingsDraft::TitleOf(std::size_t page) {
  return Titles[page];
}

std::vector<SettingRow> SettingsDraft::Rows(std::size_t page) {
  std::vector<SettingRow> rows;
  for (const Setting& setting : Settings()) {
    if (PageOf(setting) != page) continue;
    if (!setting.isFlags) rows.push_back({&setting, nullptr, KindOf(setting)});
    if (!setting.isFlags) continue;
    for (const Setting::Name& bit : setting.names) rows.push_back({&setting, &bit, Kind::Check});
  }
  std::ranges::stable_sort(rows, {}, [](const SettingRow& row) { return row.setting->page; });
  return rows;
}

int SettingsDraft::ChoiceOf(const SettingRow& row, const clsOptions& options) {
  if (const auto* truth = std::get_if<Truth>(&row.setting->field)) return options.**truth;
  const std::int32_t number = options.*std::get<Number>(row.setting->field);
  if (row.bit) return (number & row.bit->number) != 0;
  const auto named = std::ranges::find(row.setting->names, number, &Setting::Name::number);
  return named == row.setting->names.end() ? -1
                                           : static_cast<int>(named - row.setting->names.begin());
}

void SettingsDraft::Choice(const SettingRow& row, int choice) {
  if (const auto* truth = std::get_if<Truth>(&row.setting->field)) {
    m_now.** truth = choice != 0;
    return;
  }
  std::int32_t& number = m_now.*std::get<Number>(row.setting->field);
  if (row.bit)
    number = choice ? number | row.bit->number : number & ~row.bit->number;
  else if (choice >= 0)
    number = row.setting->names[static_cast<std::size_t>(choice)].number;
}

std::wstring SettingsDraft::TextOf(const SettingRow& row, const clsOptions& options) {
  if (const auto* text = std::get_if<designer::Text>(&row.setting->field)) return options.**text;
  return std::to_wstring(options.*std::get<Number>(row.setting->field));
}

void SettingsDraft::Text(const SettingRow& row, const std::wstring& text) {
  if (text == Text(row)) return;  // also one that could not be set here
  if (const auto* file = std::get_if<designer::Text>(&row.setting->field))
    m_now.** file = FileOf(*row.setting, text);
  else
    m_now.*std::get<Number>(row.setting->field) = NumberOf(*row.setting, text);
}

bool SettingsDraft::IsDefault(const SettingRow& row) const {
  if (row.bit) return Choice(row) == ChoiceOf(row, m_defaults);
  return AreSame(*row.setting, m_now, m_defaults);
}

void SettingsDraft::ToDefault(const SettingRow& row) {
  if (row.bit)
    Choice(row, ChoiceOf(row, m_defaults));
  else
    Copy(*row.setting, m_defaults, m_now);
}

std::wstring SettingsDraft::Help(const SettingRow& row) const {
  std::wstring standard;
  if (row.kind == Kind::Check)
    standard = ChoiceOf(row, m_defaults) ? L"on" : L"off";
  else if (row.kind == Kind::Choice)
    standard = row.setting->names[static_cast<std::size_t>(ChoiceOf(row, m_defaults))].meaning;
  else
    standard = TextOf(row, m_defaults);
  return std::wstring(row.setting->meaning) + L"\nDefault: " + standard + L'.';
}

bool SettingsDraft::IsChanged(const Setting& setting) const {
  return !AreSame(setting, m_now, m_stored);
}

bool SettingsDraft::IsChanged() const {
  return std::ranges::any_of(Settings(),
                             [&](const Setting& setting) { return IsChanged(setting); });
}

void SettingsDraft::Save(const SettingsServices& services, clsOptions& current) const {
  std::vector<const Setting*> changed;
  for (const Setting& setting : Settings()) {
    if (!IsChanged(setting)) continue;
    changed.push_back(&setting);
    Copy(setting, m_now, current);
  }
  if (changed.empty()) return;
  current.Reg_Save(services, SettingsKey, false);
  std::unique_ptr<RegistryKey> write, read;
  services.registry.OpenToWrite(Hive::CurrentUser, SettingsKey, write);
  services.registry.OpenToRead(Hive::CurrentUser, SettingsKey, read);
  for (const Setting* setting : changed) {
    if (write && IsOurs(*setting)) WriteOurs(*setting, *write, current);
    if (!read || !IsStored(*setting, *read, current))
      throw Error(Error::Internal, L"The settings cannot be written: the registry refuses them.");
  }
}

}  // namespace orvane::designer
