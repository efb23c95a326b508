#include "graphics/IconFinder.h"

#include <algorithm>

#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

const wchar_t FolderKind[] = L"\\";          // no extension
constexpr std::size_t ShellPathLimit = 260;  // the shell is not asked about longer ones

/// With its dot, lower case; empty without one.
std::wstring ExtensionOf(const std::wstring& path) {
  const std::size_t dot = path.find_last_of(L".\\/");
  if (dot == std::wstring::npos || path[dot] != L'.') return {};
  return LowerCase(path.substr(dot));
}

std::wstring KindName(const IconFile& file) {
  return file.isFolder ? FolderKind : ExtensionOf(file.path);
}

bool IsDrive(const std::wstring& path) {
  return path.ends_with(L":\\") || path.ends_with(L':');
}

/// The shell looks for a folder's own icon only where one of these is set (Windows: "How to
/// Customize Folders with Desktop.ini").
bool MayHaveOwnIcon(std::uint32_t folderAttributes) {
  return (folderAttributes & (FileAttribute::ReadOnly | FileAttribute::System)) != 0;
}

}  // namespace

std::optional<SystemIcon> IconFinder::Find(const IconFile& file) {
  Log(L"szFilename=", file.path);
  const bool isInNameSpaceOnly = file.path.starts_with(L"::");
  // A server that does not answer must not hold the menu up.
  if (!isInNameSpaceOnly && m_files.LiesOnNetwork(file.path)) return FindKind(KindName(file));
  if (isInNameSpaceOnly || IsDrive(file.path)) return m_icons.Find(file.path);

  std::uint32_t attributes = FileAttribute::Normal;
  if (file.isFolder || !file.isThere) {
    const auto found = m_files.Attributes(file.path);
    if (!found) return {};
    attributes = *found;
  }
  const bool isFolder = (attributes & FileAttribute::Directory) != 0;
  const std::wstring kind = KindName({file.path, isFolder});
  const bool own = isFolder ? MayHaveOwnIcon(attributes) : KindOf(kind).ownIcons;
  const bool asked = own && file.path.size() < ShellPathLimit && IsAtHand(file.path);
  return asked ? m_icons.Find(file.path) : FindKind(kind);
}

/// Whether the shell can look into the file without fetching it from somewhere, or waiting for a
/// server that the file, a shortcut, leads to.
bool IconFinder::IsAtHand(const std::wstring& path) {
  constexpr std::uint32_t Elsewhere =
      FileAttribute::Offline | FileAttribute::RecallOnOpen | FileAttribute::RecallOnDataAccess;
  const auto attributes = m_files.Attributes(path);
  if (!attributes || (*attributes & Elsewhere) != 0) return false;
  return std::ranges::none_of(m_icons.LeadsTo(path), [this](const std::wstring& place) {
    return m_files.LiesOnNetwork(place);
  });
}

IconFinder::Kind& IconFinder::KindOf(const std::wstring& name) {
  const auto [place, isNew] = m_kinds.try_emplace(name);
  if (isNew && name != FolderKind) place->second.ownIcons = m_icons.HasOwnIcons(name);
  return place->second;
}

std::optional<SystemIcon> IconFinder::FindKind(const std::wstring& name) {
  Kind& kind = KindOf(name);
  if (!kind.asked) {
    kind.icon = name == FolderKind ? m_icons.FindFolderKind() : m_icons.FindFileKind(name);
    kind.asked = true;
  }
  return kind.icon;
}

}  // namespace orvane
