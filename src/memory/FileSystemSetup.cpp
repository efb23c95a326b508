#include <algorithm>
#include <stdexcept>
#include <utility>

#include "memory/FileSystem.h"
#include "support/Text.h"

// What tests put into the file system, and in its way.

namespace orvane::memory {

FileSystem::Names FileSystem::LowerCaseAll(Names names) {
  for (std::wstring& name : names) name = LowerCase(name);
  return names;
}

std::wstring FileSystem::Joined(const Names& names) {
  std::wstring path;
  for (const std::wstring& name : names) path += (path.empty() ? L"" : L"\\") + name;
  return names.size() == 1 && path.ends_with(L':') ? path + L"\\" : path;
}

FileNode& FileSystem::AddFolder(const std::wstring& path) {
  FileNode* node = &m_roots;
  for (const std::wstring& name : Split(path)) {
    FileNode* child = node->Find(name);
    if (!child) child = &node->Add(std::make_unique<FileNode>(name, FileAttribute::Directory));
    node = child;
  }
  return *node;
}

FileNode& FileSystem::AddFile(const std::wstring& path, std::string_view content,
                              std::uint32_t attributes) {
  Names names = Split(path);
  if (names.size() < 2) throw std::invalid_argument("no file can have the name of a drive");
  const std::wstring name = names.back();
  names.pop_back();
  FileNode& folder = AddFolder(Joined(names));
  FileNode* file = folder.Find(name);
  if (!file) file = &folder.Add(std::make_unique<FileNode>(name, attributes));
  const auto* first = reinterpret_cast<const std::byte*>(content.data());
  file->SetContent({first, first + content.size()});
  file->attributes = attributes;
  return *file;
}

FileNode& FileSystem::AddLink(const std::wstring& path, const std::wstring& target) {
  FileNode& link = AddFolder(path);
  link.attributes |= FileAttribute::ReparsePoint;
  link.isLink = true;
  link.target = target;
  return link;
}

std::optional<std::string> FileSystem::Content(const std::wstring& path) {
  FileNode* node = Find(Split(path));
  if (!node || node->IsFolder() || !node->Content()) return std::nullopt;
  const std::vector<std::byte>& bytes = *node->Content();
  return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

void FileSystem::Mount(const std::wstring& root, const std::filesystem::path& directory) {
  const std::wstring name = Split(root).front();
  if (FileNode* old = m_roots.Find(name)) m_roots.Take(*old);
  m_roots.Add(std::make_unique<FileNode>(name, FileAttribute::Directory)).SetHost(directory);
}

void FileSystem::Add(Trouble trouble, const std::wstring& path) {
  m_troubles[LowerCaseAll(Split(path))].push_back(trouble);
}

void FileSystem::Stall(const std::wstring& folder, std::uint32_t milliseconds) {
  const Names names = LowerCaseAll(Split(folder));
  m_networkDrives.insert(names.front());
  m_stalls[names] = milliseconds;
}

bool FileSystem::In(Trouble trouble, const Names& names) const {
  if (m_troubles.empty()) return false;
  for (Names above = LowerCaseAll(names); !above.empty(); above.pop_back()) {
    const auto found = m_troubles.find(above);
    if (found != m_troubles.end() && std::ranges::count(found->second, trouble) != 0) return true;
  }
  return false;
}

std::uint32_t FileSystem::StallOf(const Names& names) const {
  if (m_stalls.empty()) return 0;
  for (Names above = LowerCaseAll(names); !above.empty(); above.pop_back()) {
    const auto found = m_stalls.find(above);
    if (found != m_stalls.end()) return found->second;
  }
  return 0;
}

/// Where every call begins: waits for a silent network, and fails when a test says so.
bool FileSystem::Enter(const Names& names, const Patience& patience) {
  if (m_faults.Hit()) return Fail(IoFailure), false;
  const std::uint32_t wait = StallOf(names);
  if (names.empty() || patience.IsBoundless() || !LiesOnNetwork(names.front()))
    return m_clock.Advance(wait), true;
  return Wait(wait, names.front(), patience) || (Fail(SemaphoreTimeout), false);
}

bool FileSystem::Wait(std::uint32_t time, const std::wstring& server, const Patience& patience) {
  const std::uint32_t limit = patience.For(server);
  if (limit == 0) return false;
  for (std::uint32_t waited = 0; waited < time;) {
    const std::uint32_t slice = std::min(Patience::Slice, std::min(time, limit) - waited);
    m_clock.Advance(slice);
    waited += slice;
    if (waited == time) break;
    if (waited == limit) return patience.RunOut(server), false;
    if (patience.Ends()) return false;
  }
  return true;
}

}  // namespace orvane::memory
