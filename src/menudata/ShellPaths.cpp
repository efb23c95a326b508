#include "menudata/ShellPaths.h"

#include <algorithm>

#include "support/Trace.h"

namespace orvane {
namespace {

// Special folders that exist for all users beside the user's own.
constexpr std::int32_t CommonFolders[] = {22, 23, 24, 25, 35, 43, 45, 46,
                                          47, 48, 49, 53, 54, 55, 58};
constexpr std::int32_t LocalFolder = 28;  // application data that does not roam

std::wstring_view FolderPrefix(std::int32_t csidl) {
  if (csidl == LocalFolder) return L"Local ";
  return std::ranges::find(CommonFolders, csidl) != std::end(CommonFolders) ? L"Common " : L"";
}

std::wstring LogList(const ItemIdList& pidl) {
  return Hex(pidl.bytes.data());
}

}  // namespace

std::wstring PidlToPath(Shell& shell, const ItemIdList& pidl) {
  TraceScope scope(L"PidlToPath");
  if (ActiveDebugTrace()) Log(L"Pidl=", LogList(pidl));
  std::wstring path = shell.Path(pidl);
  if (path.empty()) Log(L"Error");
  Log(L"Path=", path, L"  Len=", path.size());
  return path;
}

ItemIdList GetPidlFromPath(Shell& shell, WindowHandle window, const std::wstring& path) {
  TraceScope scope(L"GetPidlFromPath");
  ItemIdList pidl = shell.Parse(window, path);
  if (pidl && ActiveDebugTrace()) Log(L"Path=", PidlToPath(shell, pidl));
  return pidl;
}

bool IsCurrentFolderCSIDL(Shell& shell, WindowHandle window, std::int32_t csidl,
                          const std::wstring& folder) {
  TraceScope scope(L"IsCurrentFolderCSIDL");
  Log(L"lCSIDL=", csidl);
  const ItemIdList pidl = shell.SpecialFolder(window, csidl);
  const bool is = pidl && PidlToPath(shell, pidl) == folder;
  Log(L"IsCurrentFolderCSIDL=", is);
  return is;
}

std::wstring GetSpecialFolderName(Shell& shell, WindowHandle window, std::int32_t csidl,
                                  bool withPrefix) {
  const ItemIdList pidl = shell.SpecialFolder(window, csidl);
  if (!pidl) return {};
  if (ActiveDebugTrace()) Log(L"Pidl=", LogList(pidl));
  std::wstring name = shell.DisplayName(pidl);
  if (withPrefix && !name.empty()) name.insert(0, FolderPrefix(csidl));
  return name;
}

std::wstring GetDisplayName(Shell& shell, const std::wstring& path) {
  return shell.DisplayName(path);
}

bool IsDirectory(FileReader& files, const std::wstring& path, const Patience& patience) {
  const auto attributes = files.Attributes(path, patience);
  return attributes && (*attributes & FileAttribute::Directory) != 0;
}

std::wstring GetFolderOfPath(FileReader& files, const std::wstring& path,
                             const Patience& patience) {
  const std::size_t cut = path.rfind(L'\\');
  if (cut == std::wstring::npos || IsDirectory(files, path, patience)) return path;
  std::wstring folder = path.substr(0, cut);
  if (folder.size() == 2 && folder[1] == L':') folder.push_back(L'\\');
  return folder;
}

bool FileExists(FileReader& files, const std::wstring& path, const Patience& patience) {
  const auto attributes = files.Attributes(path, patience);
  return attributes && (*attributes & FileAttribute::Directory) == 0;
}

}  // namespace orvane
