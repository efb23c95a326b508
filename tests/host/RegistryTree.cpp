#include "host/RegistryTree.h"

#include <algorithm>

namespace orvane::host {
namespace {

void AddValues(HKEY key, const std::wstring& path, std::vector<std::wstring>& lines) {
  for (DWORD i = 0;; ++i) {
    wchar_t name[256];
    wchar_t text[4096];
    DWORD nameLength = 256;
    DWORD size = sizeof text - sizeof(wchar_t);
    DWORD type = 0;
    const LSTATUS status = RegEnumValueW(key, i, name, &nameLength, nullptr, &type,
                                         reinterpret_cast<BYTE*>(text), &size);
    if (status == ERROR_NO_MORE_ITEMS) return;
    text[size / sizeof(wchar_t)] = 0;
    const bool isText = status == ERROR_SUCCESS && type == REG_SZ;
    lines.push_back(path + L"@" + name + L"=" + (isText ? text : std::to_wstring(size)));
  }
}

void AddKey(HKEY hive, const std::wstring& path, const std::wstring& shown,
            std::vector<std::wstring>& lines) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(hive, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  lines.push_back(shown);
  AddValues(key, shown, lines);
  for (DWORD i = 0;; ++i) {
    wchar_t name[256];
    DWORD length = 256;
    if (RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
      break;
    }
    AddKey(hive, path + L"\\" + name, shown + L"\\" + name, lines);
  }
  RegCloseKey(key);
}

}  // namespace

std::vector<std::wstring> RegistryTree(HKEY hive, const std::wstring& path) {
  std::vector<std::wstring> lines;
  AddKey(hive, path, L"", lines);
  std::sort(lines.begin(), lines.end());
  return lines;
}

}  // namespace orvane::host
