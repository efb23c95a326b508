#pragma once

#include <string>

#include "DoctorReport.h"
#include "win32/Desktop.h"

namespace orvane::tool {

inline constexpr wchar_t ClassId[] = L"{493E3910-BC83-443B-9017-F5B53DB5F5C4}";
inline constexpr wchar_t SettingsKey[] = L"Software\\Tarnwick\\Orvane";
inline constexpr wchar_t InstallAgain[] = L"run orvane-setup.exe again; it repairs";

/// What the checks share: each adds to the report, and what it learnt for those behind it.
struct Examination {
  explicit Examination(HINSTANCE module) : desktop(module) {}

  DoctorReport report;
  win32::Desktop desktop;
  std::wstring library;     // the DLL that is registered, empty without one
  bool worthTrying = true;  // false: no menu would appear, or a message box at every right-click

  /// The text of a value; empty when there is none.
  std::wstring Text(Hive hive, const std::wstring& key, const std::wstring& name);
  /// Whether the value is there, of whatever type.
  bool Has(Hive hive, const std::wstring& key, const std::wstring& name);
  /// A number or flag; `missing` when there is none.
  std::int32_t Number(Hive hive, const std::wstring& key, const std::wstring& name,
                      std::int32_t missing);
  /// A path among the settings, by default a file beside the DLL.
  std::wstring PathSetting(const std::wstring& name, const std::wstring& file);
};

// The checks, in the order in which they are made.
void CheckSystem(Examination& examination);
void CheckClass(Examination& examination);
void CheckModule(Examination& examination);
void CheckMenus(Examination& examination);
void CheckLists(Examination& examination);
void CheckSettings(Examination& examination);
void CheckDefinition(Examination& examination);
void CheckLogs(Examination& examination);
void CheckRightClicks(Examination& examination);

}  // namespace orvane::tool
