#include "memory/ShellIcons.h"

#include "support/Text.h"

namespace orvane::memory {
namespace {

constexpr std::uintptr_t SmallImageList = 0x5A11;
const wchar_t Folder[] = L"\\";

/// With its dot, lower case; empty without one.
std::wstring ExtensionOf(const std::wstring& path) {
  const std::size_t dot = path.find_last_of(L".\\");
  if (dot == std::wstring::npos || path[dot] != L'.') return {};
  return LowerCase(path.substr(dot));
}

}  // namespace

SystemIcon ShellIcons::Place(const std::wstring& kind) {
  const auto next = static_cast<std::int32_t>(m_places.size());
  return {SmallImageList, m_places.try_emplace(kind, next).first->second};
}

std::optional<SystemIcon> ShellIcons::Find(const std::wstring& path) {
  ++finds;
  if (m_faults.Hit()) return std::nullopt;
  const auto attributes = m_files.Attributes(path);
  if (!attributes) return std::nullopt;
  if (*attributes & FileAttribute::Directory) return Place(Folder);
  const std::wstring extension = ExtensionOf(path);
  return Place(HasOwnIcons(extension) ? LowerCase(path) : extension);
}

std::optional<SystemIcon> ShellIcons::FindFileKind(const std::wstring& extension) {
  ++kindFinds;
  if (m_faults.Hit()) return std::nullopt;
  return Place(extension);
}

std::optional<SystemIcon> ShellIcons::FindFolderKind() {
  ++kindFinds;
  if (m_faults.Hit()) return std::nullopt;
  return Place(Folder);
}

bool ShellIcons::HasOwnIcons(const std::wstring& extension) {
  return ownIcons.contains(extension);
}

std::vector<std::wstring> ShellIcons::LeadsTo(const std::wstring& path) {
  const auto found = shortcuts.find(path);
  if (m_faults.Hit() || found == shortcuts.end()) return {};
  return {found->second};
}

IconHandle ShellIcons::Take(const SystemIcon& icon, std::int32_t size) {
  ++takes;
  lastSize = size;
  if (m_faults.Hit() || icon.imageList != SmallImageList) return IconHandle::None;
  // The place stays readable in the handle, so that the same icon always looks the same.
  const auto handle =
      static_cast<IconHandle>(++m_next << 16 | static_cast<std::uint16_t>(icon.index));
  m_live.insert(handle);
  return handle;
}

void ShellIcons::FreeIcon(IconHandle icon) {
  if (m_live.erase(icon) == 0) wronglyFreed = true;
}

}  // namespace orvane::memory
