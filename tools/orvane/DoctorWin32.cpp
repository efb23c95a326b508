#include <windows.h>

#include "Doctor.h"
#include "DoctorExamination.h"
#include "menudata/RegistryAccess.h"

namespace orvane::tool {
namespace {

struct Check {
  const char* name;
  void (*run)(Examination&);
};

constexpr Check Checks[] = {
    {"System", CheckSystem},
    {"Class", CheckClass},
    {"DLL", CheckModule},
    {"Menus that show it", CheckMenus},
    {"Lists of Windows", CheckLists},
    {"Settings", CheckSettings},
    {"Menu", CheckDefinition},
    {"Logs", CheckLogs},
    {"Right-clicks", CheckRightClicks},
};

template <class Value>
Value Read(Registry& registry, Hive hive, const std::wstring& path, const std::wstring& name,
           Value value) {
  std::unique_ptr<RegistryKey> key;
  if (registry.OpenToRead(hive, path, key) == 0) ReadValue(*key, name, value);
  return value;
}

}  // namespace

std::wstring Examination::Text(Hive hive, const std::wstring& key, const std::wstring& name) {
  return Read(desktop.registry, hive, key, name, std::wstring());
}

bool Examination::Has(Hive hive, const std::wstring& path, const std::wstring& name) {
  std::unique_ptr<RegistryKey> key;
  RegistryValue value;
  return desktop.registry.OpenToRead(hive, path, key) == 0 && key->Read(name, value) == 0;
}

std::int32_t Examination::Number(Hive hive, const std::wstring& key, const std::wstring& name,
                                 std::int32_t missing) {
  return Read(desktop.registry, hive, key, name, missing);
}

std::wstring Examination::PathSetting(const std::wstring& name, const std::wstring& file) {
  const std::wstring folder = library.substr(0, library.rfind(L'\\') + 1);
  return Read(desktop.registry, Hive::CurrentUser, SettingsKey, name, folder + file);
}

DoctorReport Examine() {
  Examination examination(GetModuleHandleW(nullptr));
  for (const Check& check : Checks) {
    examination.report.Section(check.name);
    check.run(examination);
  }
  return std::move(examination.report);
}

}  // namespace orvane::tool
