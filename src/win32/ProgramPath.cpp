#include "win32/ProgramPath.h"

#include <windows.h>

#include "support/FullPath.h"

namespace orvane::win32 {
namespace {

bool Exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// The shell adds the extensions of programs to a path by itself.
bool IsMissing(const std::wstring& path) {
  for (const wchar_t* extension : {L"", L".exe", L".com", L".bat", L".cmd", L".lnk", L".pif"}) {
    if (Exists(path + extension)) return false;
  }
  return true;
}

bool IsOnADrive(const std::wstring& path) {
  return IsFullPath(path) && path[1] == L':';
}

std::wstring Unquoted(std::wstring text) {
  if (text.size() > 1 && text.front() == L'"' && text.back() == L'"')
    text = text.substr(1, text.size() - 2);
  return text;
}

std::wstring Registered(const std::wstring& name) {
  const bool hasExtension = name.find(L'.') != name.npos;
  const std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + name +
                           (hasExtension ? L"" : L".exe");
  for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
    wchar_t text[4096];
    DWORD size = sizeof text;
    if (RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size) !=
        ERROR_SUCCESS)
      continue;
    const std::wstring path = Unquoted(text);
    if (IsFullPath(path) && Exists(path)) return path;
  }
  return {};
}

std::wstring EnvironmentPath() {
  std::wstring path(GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
  path.resize(GetEnvironmentVariableW(L"PATH", path.data(), static_cast<DWORD>(path.size())));
  return path;
}

/// Folders that names are looked up in, ";" between them: none that depends on the current one.
std::wstring SearchedFolders(const std::wstring& directory) {
  wchar_t folder[MAX_PATH];
  std::wstring all(folder, GetSystemDirectoryW(folder, MAX_PATH));
  all.append(L";").append(folder, GetWindowsDirectoryW(folder, MAX_PATH));
  std::wstring rest = EnvironmentPath() + L";" + directory + L";";
  for (std::size_t end; (end = rest.find(L';')) != rest.npos; rest.erase(0, end + 1)) {
    const std::wstring next = Unquoted(rest.substr(0, end));
    if (IsFullPath(next)) all.append(L";").append(next);
  }
  return all;
}

std::wstring Found(const std::wstring& name, const std::wstring& directory) {
  const std::wstring folders = SearchedFolders(directory);
  std::wstring path(SearchPathW(folders.c_str(), name.c_str(), L".exe", 0, nullptr, nullptr),
                    L'\0');
  path.resize(SearchPathW(folders.c_str(), name.c_str(), L".exe", static_cast<DWORD>(path.size()),
                          path.data(), nullptr));
  return path;
}

/// A path below the directory that was given for the program.
std::wstring Below(const std::wstring& directory, const std::wstring& file) {
  const std::wstring path = directory + L"\\" + file;
  return IsFullPath(directory) && !IsMissing(path) ? path : std::wstring();
}

}  // namespace

std::wstring ProgramPath(const std::wstring& file, const std::wstring& directory) {
  const std::wstring plain = Unquoted(file);
  if (IsOnADrive(plain))
    return plain.find(L' ') != plain.npos && IsMissing(plain) ? std::wstring() : file;
  const std::size_t colon = plain.find(L':');
  if (plain.empty() || IsFullPath(plain) || (colon != plain.npos && colon != 1)) return file;
  if (colon == 1 || plain.front() == L'\\' || plain.front() == L'/') return {};
  if (plain.find_first_of(L"\\/") != plain.npos) return Below(directory, plain);
  std::wstring path = Registered(plain);
  return path.empty() ? Found(plain, directory) : path;
}

}  // namespace orvane::win32
