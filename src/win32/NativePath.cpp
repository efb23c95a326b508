#include "win32/NativePath.h"

#include <windows.h>

#include <atomic>
#include <cstdint>

#include "win32/GrowingText.h"

namespace orvane::win32 {

namespace {

constexpr std::size_t SafeLength = MAX_PATH - 13;  // a folder leaves room for a short name
// How long the kind of a drive is believed, in milliseconds.
constexpr std::uint64_t LocalLifetime = 60'000;
constexpr std::uint64_t RemoteLifetime = 2'000;

constexpr std::wstring_view LongPrefix = L"\\\\?\\";
constexpr std::wstring_view LongSharePrefix = L"\\\\?\\UNC\\";
constexpr std::wstring_view DevicePrefix = L"\\\\.\\";

bool IsShare(const std::wstring& path) {
  if (path.starts_with(LongPrefix)) return path.starts_with(LongSharePrefix);
  return path.starts_with(L"\\\\") && !path.starts_with(DevicePrefix);
}

/// Asking a drive for its kind takes as long as listing a folder, or, under Wine, a hundred files;
/// so the answer is kept for the whole process. A disk's letter does not soon become a share's.
bool IsRemoteDrive(wchar_t letter) {
  static constinit std::atomic<std::uint64_t> asked[26] = {};  // when, and in bit 0 the answer
  const wchar_t root[] = {letter, L':', L'\\', L'\0'};
  const auto ask = [&root] { return GetDriveTypeW(root) == DRIVE_REMOTE; };
  const int index = (letter | 0x20) - L'a';
  if (index < 0 || index >= 26) return ask();

  const std::uint64_t now = GetTickCount64();
  const std::uint64_t known = asked[index].load(std::memory_order_relaxed);
  const std::uint64_t lifetime = known & 1 ? RemoteLifetime : LocalLifetime;
  if (known != 0 && now - known / 2 < lifetime) return known & 1;
  const bool remote = ask();
  asked[index].store(now * 2 + remote, std::memory_order_relaxed);
  return remote;
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
  return IsRemoteDrive(path[drive]);
}

}  // namespace orvane::win32
