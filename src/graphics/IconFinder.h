#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"

namespace orvane {

/// The file or folder whose icon is wanted.
struct IconFile {
  std::wstring path;
  bool isFolder = false;
  bool isThere = false;  // known to exist, as what was just listed does
};

/// Finds the shell's icons of files and folders, of which those of one kind share theirs as a rule:
/// what was found out about a kind is not asked twice.
class IconFinder {
 public:
  /// Both are kept and outlive the object.
  IconFinder(ShellIcons& icons, FileReader& files) : m_icons(icons), m_files(files) {}

  /// None when there is no such file, or no icon for it. Does not wait for a server.
  std::optional<SystemIcon> Find(const IconFile& file);

 private:
  /// What is known of an extension, or of folders.
  struct Kind {
    bool ownIcons = false;  // each file has to be asked for
    bool asked = false;
    std::optional<SystemIcon> icon;
  };

  bool IsAtHand(const std::wstring& path);
  Kind& KindOf(const std::wstring& name);
  std::optional<SystemIcon> FindKind(const std::wstring& name);

  ShellIcons& m_icons;
  FileReader& m_files;
  std::unordered_map<std::wstring, Kind> m_kinds;
};

}  // namespace orvane
