#include "memory/FileSystem.h"

#include <algorithm>
#include <new>
#include <utility>

#include "memory/Windows1252.h"
#include "support/FullPath.h"
#include "support/Text.h"

namespace orvane::memory {

namespace {

// Windows error codes.
constexpr std::uint32_t FileNotFound = 2;
constexpr std::uint32_t PathNotFound = 3;
constexpr std::uint32_t AccessDenied = 5;
constexpr std::uint32_t SharingViolation = 32;
constexpr std::uint32_t DiskFull = 112;
constexpr std::uint32_t FileTooLarge = 223;
constexpr std::uint32_t NotADirectory = 267;

class Listing : public DirectoryListing {
 public:
  Listing(std::vector<FoundFile> found, bool breaksOff, Faults& faults)
      : m_found(std::move(found)), m_breaksOff(breaksOff), m_faults(faults) {}

  bool Next(FoundFile& found) override {
    if (m_faults.Hit() || (m_breaksOff && m_next == 1)) m_isWhole = false;
    if (!m_isWhole || m_next == m_found.size()) return false;
    found = std::move(m_found[m_next++]);
    return true;
  }
  bool IsWhole() const override { return m_isWhole; }

 private:
  std::vector<FoundFile> m_found;
  bool m_breaksOff;
  bool m_isWhole = true;
  std::size_t m_next = 0;
  Faults& m_faults;
};

}  // namespace

/// Keeps the file locked until it is closed, which records what was written.
class FileSystem::Output : public OutputFile {
 public:
  Output(FileSystem& files, const Names& names, FileNode& node, Open how)
      : m_files(files), m_names(names), m_node(node), m_record(how == Open::CreateAnew) {
    m_node.openForWriting = true;
  }

  ~Output() override {
    m_node.openForWriting = false;
    try {
      if (m_record) m_files.Written(Joined(m_names), std::move(m_text));
    } catch (const std::bad_alloc&) {
      // The file is as it is; only the record of it found no room.
    }
  }

  bool Write(std::span<const std::byte> bytes) override {
    if (m_files.m_faults.Hit()) {
      Take(bytes.first(bytes.size() / 2));
      return m_files.Fail(IoFailure), false;
    }
    if (m_files.In(Trouble::Full, m_names)) return m_files.Fail(DiskFull), false;
    Take(bytes);
    return true;
  }

 private:
  void Take(std::span<const std::byte> bytes) {
    std::vector<std::byte>& content = *m_node.Content();
    content.insert(content.end(), bytes.begin(), bytes.end());
    m_text += DecodeAnsi(bytes);
    m_record = true;
  }

  FileSystem& m_files;
  Names m_names;
  FileNode& m_node;
  std::wstring m_text;
  bool m_record;
};

FileSystem::FileSystem(Clock& clock, Effects& effects, Faults& faults)
    : m_clock(clock), m_effects(effects), m_faults(faults) {
  AddFolder(m_working);
}

std::optional<std::vector<std::byte>> FileSystem::Read(const std::wstring& path, std::size_t limit,
                                                       const Patience& patience) {
  const Names names = Split(path);
  if (!Enter(names, patience)) return std::nullopt;
  FileNode* node = FindOrFail(names);
  if (!node) return std::nullopt;
  if (node->IsFolder() || In(Trouble::Unreadable, names)) return Fail(AccessDenied), std::nullopt;
  if (node->openForWriting) return Fail(SharingViolation), std::nullopt;
  if (node->Size() > limit) return Fail(FileTooLarge), std::nullopt;
  const std::vector<std::byte>* content = node->Content();
  if (!content) return Fail(AccessDenied), std::nullopt;
  return *content;
}

std::optional<std::uint32_t> FileSystem::Attributes(const std::wstring& path,
                                                    const Patience& patience) {
  const Names names = Split(path);
  if (!Enter(names, patience)) return std::nullopt;
  const FileNode* node = FindOrFail(names);
  if (!node) return std::nullopt;
  return node->attributes;
}

std::optional<FileIdentity> FileSystem::Identity(const std::wstring& path,
                                                 const Patience& patience) {
  const Names names = Split(path);
  if (!Enter(names, patience)) return std::nullopt;
  const FileNode* node = Follow(FindOrFail(names));
  if (!node) return std::nullopt;
  return node->Identity();
}

std::unique_ptr<DirectoryListing> FileSystem::List(const std::wstring& folder,
                                                   const Patience& patience) {
  const Names names = Split(folder);
  if (!Enter(names, patience)) return nullptr;
  FileNode* node = Follow(FindOrFail(names));
  if (!node) return nullptr;
  if (!node->IsFolder()) return Fail(NotADirectory), nullptr;
  if (In(Trouble::Unreadable, names)) return Fail(AccessDenied), nullptr;
  std::vector<FoundFile> found;
  found.reserve(node->Children().size());
  for (const auto& child : node->Children())
    found.push_back({child->Name(), child->attributes, child->isLink});
  return std::make_unique<Listing>(std::move(found), In(Trouble::BreaksOff, names), m_faults);
}

bool FileSystem::LiesOnNetwork(const std::wstring& path) {
  const Names names = Split(path);
  return !names.empty() &&
         (names.front().starts_with(L"\\\\") || m_networkDrives.contains(LowerCase(names.front())));
}

std::wstring FileSystem::ShortName(const std::wstring& path, const Patience& patience) {
  const Names names = Split(path);
  if (!Enter(names, patience) || !FindOrFail(names)) return {};
  Names shortNames;
  FileNode* node = &m_roots;
  for (const std::wstring& name : names) {
    const bool root = node == &m_roots;
    node = node->Find(name);
    shortNames.push_back(root ? node->Name() : node->ShortName());
  }
  return Joined(shortNames);
}

std::unique_ptr<OutputFile> FileSystem::OpenToWrite(const std::wstring& path, Open how) {
  const Names names = Split(path);
  if (!Enter(names)) return nullptr;
  FileNode* node = FindOrCreate(names, path);
  if (!node) return nullptr;
  std::vector<std::byte>* content = node->Content();
  if (!content) return Fail(AccessDenied), nullptr;
  if (how == Open::CreateAnew) content->clear();
  return std::make_unique<Output>(*this, names, *node, how);
}

bool FileSystem::Remove(const std::wstring& path) {
  const Names names = Split(path);
  if (!Enter(names)) return false;
  FileNode* node = FindToChange(names);
  if (!node) return false;
  if (In(Trouble::Fixed, names)) return Fail(AccessDenied), false;
  FindParent(names)->Take(*node);
  m_effects.Add(Effect("DeleteFile").With("path", Joined(names)));
  return true;
}

bool FileSystem::Replace(const std::wstring& from, const std::wstring& to) {
  const Names source = Split(from), target = Split(to);
  if (!Enter(source)) return false;
  FileNode* node = FindToChange(source);
  if (!node) return false;
  FileNode* folder = FindParent(target);
  if (!folder || !folder->IsFolder()) return Fail(PathNotFound), false;
  if (In(Trouble::ReadOnly, target) || In(Trouble::Fixed, target)) return Fail(AccessDenied), false;
  FileNode* old = folder->Find(target.back());
  if (old && old != node && !FindToChange(target)) return false;
  if (old && old != node) folder->Take(*old);
  auto taken = FindParent(source)->Take(*node);
  taken->Rename(target.back());
  folder->Add(std::move(taken));
  Moved(Joined(source), Joined(target));
  return true;
}

bool FileSystem::ChangeDirectory(const std::wstring& folder) {
  const Names names = Split(folder);
  if (!Enter(names)) return false;
  const FileNode* node = FindOrFail(names);
  if (!node) return false;
  if (!node->IsFolder()) return Fail(NotADirectory), false;
  m_working = Joined(names);
  return true;
}

FileSystem::Names FileSystem::Split(const std::wstring& path) const {
  std::wstring text = WithoutLongPrefix(path);
  std::ranges::replace(text, L'/', L'\\');
  Names names;
  if (text.starts_with(L"\\\\")) {
    const std::size_t share = text.find(L'\\', 2);
    const std::size_t end = share == std::wstring::npos ? share : text.find(L'\\', share + 1);
    names.push_back(text.substr(0, end));
    text.erase(0, end == std::wstring::npos ? text.size() : end);
  } else if (text.size() >= 2 && text[1] == L':') {
    names.push_back(text.substr(0, 2));
    text.erase(0, 2);
  } else if (text.empty()) {
    return names;
  } else {
    names = Split(m_working);
    if (text.front() == L'\\') names.resize(1);
  }
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(L'\\', start), text.size());
    std::wstring name = text.substr(start, end - start);
    if (name == L"..") {
      if (names.size() > 1) names.pop_back();
    } else if (!name.empty() && name != L".") {
      names.push_back(std::move(name));
    }
    start = end + 1;
  }
  return names;
}

FileNode* FileSystem::Find(const Names& names, int links) {
  FileNode* node = names.empty() ? nullptr : &m_roots;
  for (const std::wstring& name : names) {
    node = Follow(node, links);
    if (!node || !node->IsFolder()) return nullptr;
    node = node->Find(name);
  }
  return node;
}

/// What a link leads to; null when it leads nowhere, or round in a circle.
FileNode* FileSystem::Follow(FileNode* node, int links) {
  constexpr int MaxLinks = 16;
  if (!node || node->target.empty()) return node;
  return links == MaxLinks ? nullptr : Follow(Find(Split(node->target), links + 1), links + 1);
}

FileNode* FileSystem::FindOrFail(const Names& names) {
  FileNode* node = Find(names);
  if (!node) Fail(FindParent(names) ? FileNotFound : PathNotFound);
  return node;
}

FileNode* FileSystem::FindParent(Names names) {
  if (names.size() < 2) return nullptr;
  names.pop_back();
  return Find(names);
}

/// A file that may be removed or moved away.
FileNode* FileSystem::FindToChange(const Names& names) {
  FileNode* node = FindOrFail(names);
  if (!node) return nullptr;
  const bool readOnly = (node->attributes & FileAttribute::ReadOnly) != 0;
  if (node->IsFolder() || readOnly || In(Trouble::ReadOnly, names)) {
    return Fail(AccessDenied), nullptr;
  }
  if (node->openForWriting) return Fail(SharingViolation), nullptr;
  return node;
}

FileNode* FileSystem::FindOrCreate(const Names& names, const std::wstring& path) {
  if (FileNode* node = Find(names)) return FindToChange(names) ? node : nullptr;
  FileNode* folder = FindParent(names);
  if (!folder || !folder->IsFolder()) return Fail(PathNotFound), nullptr;
  if (In(Trouble::ReadOnly, names) || In(Trouble::Fixed, names)) return Fail(AccessDenied), nullptr;
  if (path.ends_with(L'\\')) return Fail(PathNotFound), nullptr;
  return &folder->Add(std::make_unique<FileNode>(names.back(), FileAttribute::Archive));
}

void FileSystem::Written(const std::wstring& path, std::wstring text) {
  m_effects.Add(Effect("WriteFile").With("path", path).With("text", std::move(text)));
}

void FileSystem::Moved(const std::wstring& from, const std::wstring& to) {
  if (Effect* written = m_effects.FindLast("WriteFile", from)) {
    written->fields.front().second = to;
  } else {
    m_effects.Add(Effect("MoveFile").With("from", from).With("to", to));
  }
}

}  // namespace orvane::memory
