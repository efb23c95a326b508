// Settings, menu definition file and logs, as the handler finds them.

#include <windows.h>

#include "DoctorExamination.h"
#include "menudata/Definition.h"
#include "menudata/clsOptions.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

constexpr wchar_t KeyShown[] = L"\"HKCU\\Software\\Tarnwick\\Orvane\"";

/// The items of a definition file; Error when it is none.
std::size_t CountItems(win32::Desktop& desktop, std::vector<std::byte> bytes) {
  const CodePage codePage(desktop.system.AnsiCharacters());
  Scrambler scrambler;
  const clsOptions options;
  DefinitionFile file(std::move(bytes), codePage);
  return ReadDefinition(file, {options, codePage, scrambler, desktop.shell}).items.size();
}

void ReadMenu(Examination& examination, const std::wstring& path, std::vector<std::byte> bytes) {
  try {
    const std::size_t items = CountItems(examination.desktop, std::move(bytes));
    examination.report.Fine(path + L": " + std::to_wstring(items) + L" items");
  } catch (const Error& error) {
    examination.worthTrying = false;
    examination.report.Fault(
        path + L": " + error.Description(),
        L"write it again from its document: orvane menu write MENU.json FILE.cfg");
  }
}

/// Whether a new file can be made in the folder; it is gone at once.
bool IsWritable(const std::wstring& folder) {
  const std::wstring probe = folder + L"\\orvane-doctor-" + std::to_wstring(GetCurrentProcessId());
  const HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                  FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

void CheckLog(Examination& examination, const std::wstring& setting, const std::wstring& file) {
  const std::wstring path = examination.PathSetting(setting, file);
  const std::wstring folder = path.substr(0, path.rfind(L'\\'));
  if (IsWritable(folder))
    examination.report.Fine(path);
  else
    examination.report.Fault(path + L": its folder is not there or cannot be written",
                             L"make the folder, or let the setting " + setting +
                                 L" name a file in %LOCALAPPDATA%\\Orvane");
}

}  // namespace

void CheckSettings(Examination& examination) {
  DoctorReport& report = examination.report;
  const auto wrong = clsOptions::UnreadableValues(examination.desktop.registry, SettingsKey);
  for (const std::wstring& name : wrong)
    report.Fault(name + L" is of the wrong kind, so its default counts",
                 std::wstring(L"reg delete ") + KeyShown + L" /v " + name + L" /f");
  if (wrong.empty()) report.Fine(L"all of the right kind");
  const auto number = [&](const wchar_t* name, std::int32_t missing) {
    return examination.Number(Hive::CurrentUser, SettingsKey, name, missing);
  };
  if (!number(L"ShellEnable", 1)) {
    examination.worthTrying = false;
    report.Fault(L"the menu is switched off: ShellEnable is 0",
                 std::wstring(L"reg add ") + KeyShown + L" /v ShellEnable /t REG_DWORD /d 1 /f");
  }
  if (!number(L"DebugEnable", 0) && !number(L"DebugShowWindowsMenuInfo", 0)) return;
  examination.worthTrying = false;
  report.Note(
      L"debugging is switched on: every right-click shows a message box, and menus are slow",
      std::wstring(L"reg add ") + KeyShown + L" /v DebugEnable /t REG_DWORD /d 0 /f; " +
          L"the same for DebugShowWindowsMenuInfo");
}

void CheckDefinition(Examination& examination) {
  const bool named = examination.Has(Hive::CurrentUser, SettingsKey, L"ShellConfigFile");
  const std::wstring path = examination.PathSetting(L"ShellConfigFile", L"Default.cfg");
  auto bytes = examination.desktop.files.Read(path);
  if (bytes && !bytes->empty())
    ReadMenu(examination, path, std::move(*bytes));
  else if (bytes || !named)
    examination.report.Note(L"there is no menu of your own, only the built-in commands: " + path,
                            L"orvane menu write MENU.json FILE.cfg makes one");
  else
    examination.report.Fault(path + L": cannot be read, so the menu has the built-in commands only",
                             L"write it, or correct the setting ShellConfigFile");
}

void CheckLogs(Examination& examination) {
  CheckLog(examination, L"DebugOutput", L"Debug.dbg");
  CheckLog(examination, L"TimingOutput", L"Timing.dbg");
}

}  // namespace orvane::tool
