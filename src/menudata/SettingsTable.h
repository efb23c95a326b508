#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "menudata/clsOptions.h"
#include "support/clsTrace.h"

namespace orvane {

/// The settings' key under HKEY_CURRENT_USER.
inline constexpr const wchar_t* SettingsKey = L"Software\\Tarnwick\\Orvane\\";

using SettingField =
    std::variant<std::wstring clsOptions::*, bool clsOptions::*, std::int32_t clsOptions::*>;

/// One setting: where it is kept, and what users are told of it. The kind of the field is the kind
/// of the registry value.
struct Setting {
  enum class Use {
    LoadAndSave,
    Debug,  // loaded, and saved before the rest: the settings of the debug menu
    LoadOnly,
    SaveOnly,
  };
  enum class Page { Menu, Commands, Lists, Files, Logs, Windows };

  /// A number, or a bit, that has a name.
  struct Name {
    std::int32_t number;
    const wchar_t* name;
    const wchar_t* meaning;
  };

  const wchar_t* value;  // the registry value
  SettingField field;
  Use use;
  Page page;
  const wchar_t* title;
  const wchar_t* meaning;
  std::span<const Name> names = {};
  bool isFlags = false;  // the names are of bits
  std::int32_t least = 0;
  std::int32_t most = std::numeric_limits<std::int32_t>::max();
};

/// All of them, in the order in which they are read and written.
std::span<const Setting> Settings();

/// The setting of a registry value, without regard to case; null when there is none.
const Setting* FindSetting(std::wstring_view value);

inline constexpr std::int32_t DefaultDebugFlags = clsTrace::FlagAutoCommit | clsTrace::FlagEncrypt;

/// What an empty registry means.
clsOptions DefaultSettings(SystemInfo& system);

}  // namespace orvane
