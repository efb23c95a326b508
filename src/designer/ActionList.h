#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "customactions/CheckAction.h"
#include "customactions/clsCustomActions.h"
#include "platform/FileSystem.h"

namespace orvane::designer {

/// The custom actions of a file while they are edited, in the order in which they are tried. Every
/// failure is an Error whose description names the file; the file is then as it was.
class ActionList {
 public:
  /// Both are kept and outlive the object.
  ActionList(FileSystem& files, const ActionServices& services)
      : m_files(files), m_services(services) {}

  /// Takes the place of what is here. A file that is not there has no actions yet.
  void Open(const std::wstring& path);
  const std::wstring& Path() const { return m_path; }

  const std::vector<CustomAction>& Actions() const { return m_actions; }
  bool IsDirty() const { return m_actions != m_saved; }
  /// Of the actions as they are here, and of what the file has and no action can show.
  ActionFindings Findings() const;

  // Edits; each gives the place of the action that is to be shown then.
  std::size_t Add();
  std::size_t Duplicate(std::size_t place);
  std::size_t Remove(std::size_t place);
  std::size_t Move(std::size_t place, bool up);
  /// A name is changed here too.
  void Change(std::size_t place, CustomAction action) { m_actions[place] = std::move(action); }

  /// Whether the file is not what it was when it was last read or written.
  bool ChangedMeanwhile() { return m_files.Read(m_path) != m_bytes; }

  /// Writes the actions that were changed beside the file, and moves the new one over it; what else
  /// the file says stays. What was there before stays under the same name with ".bak" at its end.
  void Save();

 private:
  using Bytes = std::vector<std::byte>;

  std::wstring FreeName(const std::wstring& wanted) const;
  void CheckNames() const;
  bool IsAnsiEnough() const;
  Bytes Written() const;
  void Edit(clsCustomActions& writer) const;
  std::vector<CustomAction> ActionsOf(const Bytes& bytes) const;

  FileSystem& m_files;
  ActionServices m_services;
  std::wstring m_path;
  std::optional<Bytes> m_bytes;  // none: there was no file
  std::vector<CustomAction> m_actions;
  std::vector<CustomAction> m_saved;
  ActionFindings m_ofFile;  // what only the file's text shows
};

}  // namespace orvane::designer
