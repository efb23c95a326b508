#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/FileSystem.h"

namespace orvane::memory {

/// A file or folder of the memory file system. One that comes from a mounted directory reads its
/// contents from the host when they are first asked for, and from then on lives in memory.
class FileNode {
 public:
  FileNode(std::wstring name, std::uint32_t attributes);

  bool IsFolder() const;
  const std::wstring& Name() const { return m_name; }
  const std::wstring& ShortName() const { return m_shortName; }

  std::uint32_t attributes;
  bool isLink = false;
  std::wstring target;  // of a link to a path; a host's link follows itself
  bool openForWriting = false;

  /// Lets the node stand for a file or directory of the host.
  void SetHost(std::filesystem::path host);

  // A folder's entries, in the order in which they came; a mounted directory's in order of name.
  const std::vector<std::unique_ptr<FileNode>>& Children();
  FileNode* Find(std::wstring_view name);  // by long or short name
  FileNode& Add(std::unique_ptr<FileNode> child);
  std::unique_ptr<FileNode> Take(FileNode& child);

  /// Renames a node that is in no folder.
  void Rename(std::wstring name) { m_name = std::move(name); }

  /// A file's bytes; null when the host cannot read them.
  std::vector<std::byte>* Content();
  void SetContent(std::vector<std::byte> content);
  std::uintmax_t Size() const;

  FileIdentity Identity() const;

 private:
  void LoadDirectory();
  bool LoadContent();
  std::wstring MakeShortName(const std::wstring& name);

  std::wstring m_name;
  std::wstring m_shortName;
  std::filesystem::path m_host;    // empty once loaded
  std::filesystem::path m_origin;  // the same for ever
  std::vector<std::byte> m_content;
  std::vector<std::unique_ptr<FileNode>> m_children;
  std::unordered_map<std::wstring, FileNode*> m_index;        // by lower-cased name
  std::unordered_map<std::wstring, unsigned> m_shortNumbers;  // last "~n" by its stem
};

}  // namespace orvane::memory
