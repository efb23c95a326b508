#include "designerapp/FileDialogs.h"

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

namespace orvane::designerapp {
namespace {

constexpr const char* Opening = "GetOpenFileNameW";
constexpr const char* Saving = "GetSaveFileNameW";
constexpr DWORD RoomForNames = 65536;  // characters, of many names in one folder

const wchar_t* FilterOf(Files kind) {
  switch (kind) {
    case Files::Menus:
      return L"Menu definitions (*.cfg)\0*.cfg\0All files\0*.*\0";
    case Files::Documents:
      return L"Menu documents (*.json)\0*.json\0All files\0*.*\0";
    default:
      return L"All files\0*.*\0";
  }
}

const wchar_t* ExtensionOf(Files kind) {
  return kind == Files::Menus ? L"cfg" : kind == Files::Documents ? L"json" : nullptr;
}

OPENFILENAMEW Request(HWND owner, Files kind, std::wstring& name) {
  OPENFILENAMEW request{};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.lpstrFilter = FilterOf(kind);
  request.lpstrDefExt = ExtensionOf(kind);
  request.lpstrFile = name.data();
  request.nMaxFile = static_cast<DWORD>(name.size());
  request.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_NODEREFERENCELINKS;
  return request;
}

/// A buffer that begins with the text. Characters that no name has make the dialog fail.
std::wstring BufferFor(const std::wstring& start) {
  std::wstring name = start.find_first_of(L"\"<>|*?") == std::wstring::npos ? start : L"";
  name.resize(RoomForNames);
  return name;
}

/// Of the library that has the dialogs, loaded when one is asked for: it would take a good part of
/// the designer's start.
bool IsAnswered(const char* dialog, OPENFILENAMEW& request) {
  const HMODULE library = LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  const auto show = reinterpret_cast<BOOL(WINAPI*)(OPENFILENAMEW*)>(
      reinterpret_cast<void*>(library ? GetProcAddress(library, dialog) : nullptr));
  return show && show(&request);
}

std::wstring UpToZero(const std::wstring& text) {
  return text.substr(0, text.find(L'\0'));
}

}  // namespace

std::wstring AskFile(HWND owner, Files kind, const std::wstring& start) {
  std::wstring name = BufferFor(start);
  OPENFILENAMEW request = Request(owner, kind, name);
  request.Flags |= OFN_FILEMUSTEXIST;
  return IsAnswered(Opening, request) ? UpToZero(name) : std::wstring();
}

std::vector<std::wstring> AskFiles(HWND owner) {
  std::wstring name = BufferFor({});
  OPENFILENAMEW request = Request(owner, Files::Any, name);
  request.Flags |= OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT;
  if (!IsAnswered(Opening, request)) return {};
  std::vector<std::wstring> parts;  // the folder and the names in it, or one whole path
  for (const wchar_t* part = name.c_str(); *part; part += parts.back().size() + 1)
    parts.emplace_back(part);
  if (parts.size() < 2) return parts;
  for (std::size_t i = 1; i < parts.size(); ++i) parts[i] = parts[0] + L'\\' + parts[i];
  parts.erase(parts.begin());
  return parts;
}

std::wstring AskNewFile(HWND owner, Files kind, const std::wstring& start) {
  std::wstring name = BufferFor(start);
  OPENFILENAMEW request = Request(owner, kind, name);
  request.Flags |= OFN_OVERWRITEPROMPT;
  return IsAnswered(Saving, request) ? UpToZero(name) : std::wstring();
}

std::wstring AskFolder(HWND owner, const std::wstring& start) {
  const auto select = [](HWND dialog, UINT message, LPARAM, LPARAM path) -> int {
    if (message == BFFM_INITIALIZED) SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, path);
    return 0;
  };
  BROWSEINFOW request{};
  request.hwndOwner = owner;
  request.lpszTitle = L"Choose a folder";
  request.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
  request.lpfn = select;
  request.lParam = reinterpret_cast<LPARAM>(start.c_str());
  const PIDLIST_ABSOLUTE item = SHBrowseForFolderW(&request);
  wchar_t path[MAX_PATH] = L"";
  if (item) SHGetPathFromIDListW(item, path);
  CoTaskMemFree(item);
  return path;
}

}  // namespace orvane::designerapp
