#include "win32/FileOperations.h"

#include <windows.h>

#include <shellapi.h>

#include "win32/NativeHandles.h"

namespace orvane::win32 {

std::int32_t FileOperations::Run(WindowHandle owner, Function function, const FileNames& from,
                                 const std::wstring& to, std::uint16_t flags) {
  if (from.Count() == 0) return 0;
  if (HasWildcard(from)) return InvalidName;
  // both lists end with an empty name
  std::wstring source(from.All());
  source += L'\0';
  std::wstring destination = to;
  destination.append(2, L'\0');
  SHFILEOPSTRUCTW operation{};
  operation.hwnd = ToNative<HWND>(owner);
  operation.wFunc = static_cast<UINT>(function);
  operation.pFrom = source.c_str();
  operation.pTo = destination.c_str();
  operation.fFlags = flags;
  return SHFileOperationW(&operation);
}

}  // namespace orvane::win32
