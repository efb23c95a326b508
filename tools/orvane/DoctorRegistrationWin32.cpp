// What the registry says of the class, of the menus that show it, and of the lists by which Windows
// keeps handlers out.

#include <windows.h>

#include <array>

#include "DoctorExamination.h"
#include "support/Text.h"

namespace orvane::tool {
namespace {

constexpr wchar_t ShellExtensions[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Shell Extensions\\";
constexpr wchar_t Policies[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";

struct Scope {
  Hive hive;
  const wchar_t* whom;
  const wchar_t* root;
};
constexpr std::array<Scope, 2> Scopes = {{
    {Hive::CurrentUser, L"for this user", L"HKCU"},
    {Hive::LocalMachine, L"for all users", L"HKLM"},
}};

std::wstring ServerKey() {
  return std::wstring(L"Software\\Classes\\CLSID\\") + ClassId + L"\\InprocServer32";
}

void CheckServer(Examination& examination, const Scope& scope) {
  const std::wstring path = examination.Text(scope.hive, ServerKey(), L"");
  if (path.empty()) return;
  examination.report.Fine(std::wstring(L"registered ") + scope.whom + L": " + path);
  if (!examination.library.empty() && LowerCase(path) != LowerCase(examination.library))
    examination.report.Note(
        L"two DLLs are registered; programs of this user load the first",
        L"remove one of them: orvane-setup.exe /REMOVE, with or without /ALLUSERS");
  if (LowerCase(examination.Text(scope.hive, ServerKey(), L"ThreadingModel")) != L"apartment")
    examination.report.Fault(L"its ThreadingModel is not \"Apartment\"", InstallAgain);
  if (examination.library.empty()) examination.library = path;
}

/// Says where a menu shows the handler, or that none does.
void CheckMenu(Examination& examination, const std::wstring& menu) {
  const std::wstring key =
      L"Software\\Classes\\" + menu + L"\\shellex\\ContextMenuHandlers\\Orvane";
  std::wstring where;
  std::wstring other;
  for (const Scope& scope : Scopes) {
    const std::wstring text = examination.Text(scope.hive, key, L"");
    if (LowerCase(text) == LowerCase(ClassId))
      where += std::wstring(where.empty() ? L"" : L" and ") + scope.whom;
    else if (!text.empty())
      other = text;
  }
  if (!where.empty())
    examination.report.Fine(menu + L": " + where);
  else if (!other.empty())
    examination.report.Fault(menu + L": names another class, " + other, InstallAgain);
  else
    examination.report.Fault(menu + L": the handler is not among its handlers", InstallAgain);
}

bool IsBlocked(Examination& examination) {
  bool blocked = false;
  for (const Scope& scope : Scopes) {
    const std::wstring key = std::wstring(ShellExtensions) + L"Blocked";
    if (!examination.Has(scope.hive, key, ClassId)) continue;
    blocked = true;
    examination.report.Fault(
        std::wstring(L"the class is on the list of blocked handlers, ") + scope.whom,
        std::wstring(L"reg delete \"") + scope.root + L"\\" + key + L"\" /v " + ClassId + L" /f");
  }
  return blocked;
}

bool IsApproved(Examination& examination, Hive hive) {
  return examination.Has(hive, std::wstring(ShellExtensions) + L"Approved", ClassId);
}

/// A policy may admit none but the handlers that an administrator approved.
bool OnlyApproved(Examination& examination) {
  for (const Scope& scope : Scopes) {
    if (examination.Number(scope.hive, Policies, L"EnforceShellExtensionSecurity", 0)) return true;
  }
  return false;
}

}  // namespace

void CheckClass(Examination& examination) {
  for (const Scope& scope : Scopes) CheckServer(examination, scope);
  if (!examination.library.empty()) return;
  examination.worthTrying = false;
  examination.report.Fault(L"the class is registered neither for this user nor for all",
                           InstallAgain);
}

void CheckMenus(Examination& examination) {
  for (const wchar_t* menu : {L"*", L"Directory", L"Directory\\Background", L"Drive"})
    CheckMenu(examination, menu);
}

void CheckLists(Examination& examination) {
  if (!IsBlocked(examination)) examination.report.Fine(L"not blocked");
  const bool forAll = IsApproved(examination, Hive::LocalMachine);
  if (OnlyApproved(examination) && !forAll)
    examination.report.Fault(
        L"a policy admits approved handlers only, and this one is not approved",
        L"run orvane-setup.exe /ALLUSERS as administrator");
  else if (forAll || IsApproved(examination, Hive::CurrentUser))
    examination.report.Fine(L"approved");
  else
    examination.report.Note(L"not on the list of approved handlers, which no policy asks for",
                            InstallAgain);
}

}  // namespace orvane::tool
