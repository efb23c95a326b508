#pragma once

#include "commands/NameList.h"
#include "menudata/clsOrvaneData.h"
#include "support/FileFilter.h"

namespace orvane {

/// The two lists of a selection task, of the names that pass its filter: one for a command line and
/// one for a file, each name between the task's prefix and suffix.
class TaskLists : public NameList {
 public:
  /// `task` is kept; its texts stay as they are meanwhile. Short names are never quoted.
  TaskLists(const clsOrvaneData& task, bool shortNames);

  bool Filters() const override { return !m_filter.IsEmpty(); }
  void Reserve(std::size_t names, std::size_t characters) override;
  void Add(const WrittenName& written, std::wstring_view found, bool isFolder) override;

  const std::wstring& CmdLine() const { return m_szCmdLine; }
  const std::wstring& File() const { return m_szFile; }

 private:
  const clsOrvaneData& m_task;
  bool m_quotes;
  FileFilter m_filter;
  std::wstring m_szCmdLine;
  std::wstring m_szFile;
};

}  // namespace orvane
