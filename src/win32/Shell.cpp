#include "win32/Shell.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <memory>

#include "win32/ComPointer.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"

namespace orvane::win32 {
namespace {

constexpr DWORD MaxPath = 32768;  // of an extended-length path, with its end

std::wstring DisplayNameOf(const wchar_t* pathOrList, UINT flags) {
  SHFILEINFOW info{};
  if (!SHGetFileInfoW(pathOrList, 0, &info, sizeof info, flags | SHGFI_DISPLAYNAME)) return {};
  return info.szDisplayName;
}

}  // namespace

std::wstring Shell::Path(const ItemIdList& item) {
  const PCIDLIST_ABSOLUTE list = ToNativeList(item);
  if (!list) return {};
  const auto path = std::make_unique_for_overwrite<wchar_t[]>(MaxPath);
  if (!SHGetPathFromIDListEx(list, path.get(), MaxPath, GPFIDL_DEFAULT)) return {};
  return path.get();
}

ItemIdList Shell::Parse(WindowHandle owner, const std::wstring& path) {
  if (path.empty() || path.find(L'\0') != std::wstring::npos) return {};
  ComPointer<IShellFolder> desktop;
  if (FAILED(SHGetDesktopFolder(desktop.Out()))) return {};
  std::wstring text = path;  // the parameter is not const
  ULONG eaten = 0;
  ULONG attributes = 0;
  PIDLIST_RELATIVE parsed = nullptr;
  if (FAILED(desktop->ParseDisplayName(ToNative<HWND>(owner), nullptr, text.data(), &eaten, &parsed,
                                       &attributes))) {
    return {};
  }
  const ShellItemIdList list(static_cast<PIDLIST_ABSOLUTE>(parsed));
  return CopyOf(list.get());
}

ItemIdList Shell::SpecialFolder(WindowHandle owner, std::int32_t csidl) {
  ShellItemIdList list;
  if (FAILED(SHGetSpecialFolderLocation(ToNative<HWND>(owner), csidl, list.Out()))) return {};
  return CopyOf(list.get());
}

std::wstring Shell::DisplayName(const ItemIdList& item) {
  const PCIDLIST_ABSOLUTE list = ToNativeList(item);
  return list ? DisplayNameOf(reinterpret_cast<const wchar_t*>(list), SHGFI_PIDL) : std::wstring();
}

std::wstring Shell::DisplayName(const std::wstring& path) {
  return path.empty() ? std::wstring() : DisplayNameOf(path.c_str(), 0);
}

}  // namespace orvane::win32
