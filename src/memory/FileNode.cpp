#include "memory/FileNode.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::memory {

namespace {

namespace fs = std::filesystem;

bool IsShortNamePart(std::wstring_view part, std::size_t maxLength) {
  constexpr std::wstring_view Bad = L" .\"*+,/:;<=>?[\\]|";
  return part.size() <= maxLength && std::ranges::none_of(part, [&](wchar_t c) {
           return static_cast<std::uint32_t>(c) <= 0x20 || static_cast<std::uint32_t>(c) > 0x7E ||
                  Bad.find(c) != std::wstring_view::npos;
         });
}

/// Capitals, without blanks and dots, "_" for what a short name cannot hold.
std::wstring ToShortNamePart(std::wstring_view part, std::size_t maxLength) {
  std::wstring result;
  for (const wchar_t c : part) {
    if (c == L' ' || c == L'.') continue;
    if (result.size() == maxLength) break;
    const bool small = c >= L'a' && c <= L'z';
    const bool fits = IsShortNamePart({&c, 1}, 1);
    result.push_back(small ? static_cast<wchar_t>(c - 32) : fits ? c : L'_');
  }
  return result;
}

/// The name of a host's file as Windows has it; none for bytes that are no name there.
std::optional<std::wstring> HostName(const fs::path& path) {
#ifdef _WIN32
  return path.filename().native();
#else
  return FromUtf8(path.filename().native());
#endif
}

/// A node for an entry of a host directory; null for what Windows has nothing like (a pipe, a
/// device, a broken link: reading one could wait for ever).
std::unique_ptr<FileNode> MakeHostNode(const fs::directory_entry& entry) {
  std::error_code error;
  const fs::file_status status = entry.status(error);
  if (error || (!fs::is_directory(status) && !fs::is_regular_file(status))) return nullptr;
  const auto name = HostName(entry.path());
  if (!name) return nullptr;
  std::uint32_t attributes =
      fs::is_directory(status) ? FileAttribute::Directory : FileAttribute::Archive;
  const bool isLink = entry.is_symlink(error);
  if (isLink) attributes |= FileAttribute::ReparsePoint;
  auto node = std::make_unique<FileNode>(*name, attributes);
  node->isLink = isLink;
  node->SetHost(entry.path());
  return node;
}

}  // namespace

FileNode::FileNode(std::wstring name, std::uint32_t attributes)
    : attributes(attributes), m_name(std::move(name)) {}

bool FileNode::IsFolder() const {
  return (attributes & FileAttribute::Directory) != 0;
}

void FileNode::SetHost(fs::path host) {
  m_origin = host;
  m_host = std::move(host);
}

const std::vector<std::unique_ptr<FileNode>>& FileNode::Children() {
  LoadDirectory();
  return m_children;
}

FileNode* FileNode::Find(std::wstring_view name) {
  LoadDirectory();
  const auto found = m_index.find(LowerCase(name));
  return found == m_index.end() ? nullptr : found->second;
}

FileNode& FileNode::Add(std::unique_ptr<FileNode> child) {
  LoadDirectory();
  FileNode& node = *child;
  m_children.push_back(std::move(child));
  m_index.try_emplace(LowerCase(node.m_name), &node);
  node.m_shortName = MakeShortName(node.m_name);
  m_index.try_emplace(LowerCase(node.m_shortName), &node);
  return node;
}

std::unique_ptr<FileNode> FileNode::Take(FileNode& child) {
  const auto place = std::ranges::find_if(m_children, [&](auto& c) { return c.get() == &child; });
  if (place == m_children.end()) return nullptr;
  auto taken = std::move(*place);
  m_children.erase(place);
  std::erase_if(m_index, [&](const auto& entry) { return entry.second == &child; });
  return taken;
}

std::vector<std::byte>* FileNode::Content() {
  return LoadContent() ? &m_content : nullptr;
}

std::uintmax_t FileNode::Size() const {
  if (m_host.empty()) return m_content.size();
  std::error_code error;
  const std::uintmax_t size = fs::file_size(m_host, error);
  return error ? 0 : size;
}

void FileNode::SetContent(std::vector<std::byte> content) {
  m_content = std::move(content);
  m_host.clear();
}

FileIdentity FileNode::Identity() const {
  if (m_origin.empty()) return {0, reinterpret_cast<std::uintptr_t>(this)};
  std::error_code error;
  return {1, fs::hash_value(fs::canonical(m_origin, error))};
}

void FileNode::LoadDirectory() {
  if (m_host.empty() || !IsFolder()) return;
  const fs::path host = std::exchange(m_host, fs::path());
  std::error_code error;
  std::vector<std::pair<std::wstring, std::unique_ptr<FileNode>>> nodes;
  for (fs::directory_iterator entry(host, error), end; !error && entry != end;
       entry.increment(error)) {
    if (auto node = MakeHostNode(*entry)) {
      std::wstring key = LowerCase(node->Name());
      nodes.emplace_back(std::move(key), std::move(node));
    }
  }
  std::ranges::sort(nodes, [](const auto& a, const auto& b) {
    return a.first != b.first ? a.first < b.first : a.second->Name() < b.second->Name();
  });
  for (auto& [key, node] : nodes) Add(std::move(node));
}

bool FileNode::LoadContent() {
  if (m_host.empty()) return true;
  std::ifstream file(m_host, std::ios::binary);
  if (!file) return false;
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
  m_content.assign(first, first + bytes.size());
  m_host.clear();
  return true;
}

std::wstring FileNode::MakeShortName(const std::wstring& name) {
  const std::size_t dot = name.rfind(L'.');
  const std::wstring_view stem = std::wstring_view(name).substr(0, dot);
  const std::wstring_view extension =
      dot == std::wstring::npos ? std::wstring_view() : std::wstring_view(name).substr(dot + 1);
  if (!stem.empty() && IsShortNamePart(stem, 8) && IsShortNamePart(extension, 3)) return name;
  const std::wstring shortStem = ToShortNamePart(stem, 6);
  std::wstring shortExtension = ToShortNamePart(extension, 3);
  if (!shortExtension.empty()) shortExtension.insert(0, 1, L'.');
  for (;;) {
    const unsigned number = ++m_shortNumbers[shortStem + shortExtension];
    const std::wstring tail = L"~" + std::to_wstring(number);
    std::wstring result = shortStem.substr(0, 8 - tail.size());
    result.append(tail).append(shortExtension);
    if (!m_index.contains(LowerCase(result))) return result;
  }
}

}  // namespace orvane::memory
