#include "win32/NativePath.h"

#include <windows.h>

#include "win32/GrowingText.h"

namespace orvane::win32 {

namespace {

constexpr std::size_t SafeLength = MAX_PATH - 13;  // a folder leaves room for a short name
constexpr std::wstring_view LongPrefix = L"\\\\?\\";
constexpr std::wstring_view LongSharePrefix = L"\\\\?\\UNC\\";
constexpr std::wstring_view DevicePrefix = L"\\\\.\\";

bool IsShare(const std::wstring& path) {
  if (path.starts_with(LongPrefix)) return path.starts_with(LongSharePrefix);
  return path.starts_with(L"\\\\") && !path.starts_with(DevicePrefix);
}

}  // namespace

std::wstring NativePath(const std::wstring& path) {
  if (path.size() <= SafeLength || path.starts_with(LongPrefix)) return path;
  const std::wstring full = GrowingText([&path](wchar_t* text, DWORD size) {
    return GetFullPathNameW(path.c_str(), size, text, nullptr);
  });
  if (full.empty()) return path;
  if (IsShare(full)) return std::wstring(LongSharePrefix) + full.substr(2);
  return std::wstring(LongPrefix) + full;
}

bool IsOnNetwork(const std::wstring& path) {
  if (IsShare(path)) return true;
  const std::size_t drive = path.starts_with(LongPrefix) ? LongPrefix.size() : 0;
  if (path.size() < drive + 2 || path[drive + 1] != L':') return false;
  const wchar_t root[] = {path[drive], L':', L'\\', L'\0'};
  return GetDriveTypeW(root) == DRIVE_REMOTE;
}

}  // namespace orvane::win32
