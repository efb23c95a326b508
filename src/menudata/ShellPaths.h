#pragma once

#include <cstdint>
#include <string>

#include "platform/FileSystem.h"
#include "platform/Shell.h"

namespace orvane {

// Paths, item-identifier lists and the names of special folders.

/// File-system path of a list; empty for a virtual folder.
std::wstring PidlToPath(Shell& shell, const ItemIdList& pidl);
/// The list a path names; none when the shell cannot parse it.
ItemIdList GetPidlFromPath(Shell& shell, WindowHandle window, const std::wstring& path);
/// Whether `folder` is, letter for letter, the path of the special folder.
bool IsCurrentFolderCSIDL(Shell& shell, WindowHandle window, std::int32_t csidl,
                          const std::wstring& folder);
/// Display name of a special folder, with "Common " or "Local " before it where that tells two of
/// one name apart; empty when the shell does not know the folder.
std::wstring GetSpecialFolderName(Shell& shell, WindowHandle window, std::int32_t csidl,
                                  bool withPrefix);
std::wstring GetDisplayName(Shell& shell, const std::wstring& path);
bool IsDirectory(FileReader& files, const std::wstring& path,
                 const Patience& patience = Patience::Endless);
/// The folder a path lies in; a folder is its own, a drive's root keeps its backslash.
std::wstring GetFolderOfPath(FileReader& files, const std::wstring& path,
                             const Patience& patience = Patience::Chosen);
/// A file of that name is there; a folder does not count.
bool FileExists(FileReader& files, const std::wstring& path,
                const Patience& patience = Patience::Chosen);

}  // namespace orvane
