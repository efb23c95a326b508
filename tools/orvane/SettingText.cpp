#include "SettingText.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "memory/Registry.h"
#include "memory/RegistryText.h"
#include "menudata/RegistryAccess.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

[[noreturn]] void Refuse(const Setting& setting, const std::string& possible) {
  throw std::runtime_error(ToUtf8(setting.value) + " takes " + possible);
}

std::string Names(const Setting& setting, const char* separator) {
  std::string names;
  for (const Setting::Name& name : setting.names)
    names += (names.empty() ? "" : separator) + ToUtf8(name.name);
  return names;
}

void CheckRange(const Setting& setting, std::int32_t number) {
  if (number < setting.least || number > setting.most)
    Refuse(setting, "a number from " + std::to_string(setting.least) + " to " +
                        std::to_string(setting.most));
}

bool ParseTruth(const Setting& setting, const std::string& text) {
  for (const char* yes : {"yes", "true", "on", "1"})
    if (text == yes) return true;
  for (const char* no : {"no", "false", "off", "0"})
    if (text == no) return false;
  Refuse(setting, "yes or no");
}

std::int32_t ParseNumber(const Setting& setting, std::string_view text) {
  const auto named = std::ranges::find_if(
      setting.names, [&](const Setting::Name& name) { return ToUtf8(name.name) == text; });
  if (named != setting.names.end()) return named->number;
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    if (setting.names.empty()) Refuse(setting, "a number");
    Refuse(setting, std::string(setting.isFlags ? "names joined by commas: " : "one of ") +
                        Names(setting, ", ") + ", or a number");
  }
  CheckRange(setting, number);
  return number;
}

std::int32_t ParseFlags(const Setting& setting, std::string_view text) {
  std::int32_t flags = 0;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(','));
    flags |= ParseNumber(setting, word);
    text.remove_prefix(std::min(text.size(), word.size() + 1));
  }
  return flags;
}

std::string FlagsText(const Setting& setting, std::int32_t flags) {
  std::string text;
  const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ",") + part; };
  for (const Setting::Name& name : setting.names) {
    if ((flags & name.number) == 0) continue;
    add(ToUtf8(name.name));
    flags &= ~name.number;
  }
  if (flags != 0 || text.empty()) add(std::to_string(flags));
  return text;
}

std::string NumberText(const Setting& setting, std::int32_t number) {
  if (setting.isFlags) return FlagsText(setting, number);
  for (const Setting::Name& name : setting.names)
    if (name.number == number) return ToUtf8(name.name);
  return std::to_string(number);
}

}  // namespace

SettingValue ValueOf(const clsOptions& options, const Setting& setting) {
  return std::visit([&](auto field) { return SettingValue(options.*field); }, setting.field);
}

std::string SettingText(const Setting& setting, const SettingValue& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return ToUtf8(*text);
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "yes" : "no";
  return NumberText(setting, std::get<std::int32_t>(value));
}

SettingValue ParseSetting(const Setting& setting, const std::string& text) {
  if (std::holds_alternative<bool clsOptions::*>(setting.field)) return ParseTruth(setting, text);
  if (std::holds_alternative<std::int32_t clsOptions::*>(setting.field))
    return setting.isFlags ? ParseFlags(setting, text) : ParseNumber(setting, text);
  auto wide = FromUtf8(text);
  if (!wide || wide->find(L'\0') != wide->npos) Refuse(setting, "a text in UTF-8");
  return *std::move(wide);
}

RegistryValue ToRegistry(const SettingValue& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return memory::TextValue(*text);
  if (const auto* truth = std::get_if<bool>(&value)) return memory::NumberValue(*truth);
  return memory::NumberValue(static_cast<std::uint32_t>(std::get<std::int32_t>(value)));
}

SettingValue FromRegistry(const Setting& setting, const RegistryValue& value) {
  memory::Effects effects;
  memory::Faults faults;
  memory::SystemInfo system;
  memory::Registry registry(effects, faults, system);
  registry.Set(Hive::CurrentUser, SettingsKey, setting.value, value);
  std::unique_ptr<RegistryKey> key;
  registry.OpenToRead(Hive::CurrentUser, SettingsKey, key);
  return std::visit(
      [&](auto field) {
        clsOptions options;
        if (ReadValue(*key, setting.value, options.*field) != 0)
          Refuse(setting, std::string("another kind of value: ") + KindName(setting));
        if constexpr (std::is_same_v<decltype(field), std::int32_t clsOptions::*>)
          CheckRange(setting, options.*field);
        return SettingValue(options.*field);
      },
      setting.field);
}

clsOptions LoadSettings(Registry& values, SystemInfo& system) {
  clsOptions options = DefaultSettings(system);
  std::unique_ptr<RegistryKey> key;
  if (values.OpenToRead(Hive::CurrentUser, SettingsKey, key) != 0) return options;
  for (const Setting& setting : Settings())
    std::visit([&](auto field) { ReadValue(*key, setting.value, options.*field); }, setting.field);
  return options;
}

const char* KindName(const Setting& setting) {
  if (std::holds_alternative<std::wstring clsOptions::*>(setting.field)) return "text";
  if (std::holds_alternative<bool clsOptions::*>(setting.field)) return "yes or no";
  if (setting.names.empty()) return "number";
  return setting.isFlags ? "flags" : "choice";
}

}  // namespace orvane::tool
