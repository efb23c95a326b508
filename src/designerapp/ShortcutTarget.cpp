#include "designerapp/ShortcutTarget.h"

#include <windows.h>

#include <shlobj.h>

#include "win32/ComPointer.h"

namespace orvane::designerapp {

std::wstring TargetOfShortcut(const std::wstring& shortcut) {
  win32::ComPointer<IShellLinkW> link;
  win32::ComPointer<IPersistFile> file;
  wchar_t target[MAX_PATH] = L"";
  if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                              reinterpret_cast<void**>(link.Out()))) ||
      FAILED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Out()))) ||
      FAILED(file->Load(shortcut.c_str(), STGM_READ)) ||
      FAILED(link->GetPath(target, MAX_PATH, nullptr, 0)))
    return {};
  return target;
}

}  // namespace orvane::designerapp
