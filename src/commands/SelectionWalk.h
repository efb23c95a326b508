#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "commands/NameList.h"
#include "platform/DataObject.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "support/Trace.h"

namespace orvane {

/// Gives the selected names to a list, and everything inside selected folders if asked to: each
/// folder before its contents, in the file system's order. Links and mount points are folders like
/// any other, unless they lead back to a folder that is being walked. For one run.
class SelectionWalk {
 public:
  /// All are kept. Short names are those of 8.3.
  SelectionWalk(FileReader& files, NameList& list, bool shortNames)
      : m_files(files), m_list(list), m_shortNames(shortNames) {}

  /// Behind a window (`view`, else null) a network is waited for until the user cancels; without
  /// one each server for some seconds.
  void Run(const FileNames& names, bool recursive, ProgressView* view);

  /// Ends the walk at the next name, from inside the view.
  void Cancel() { m_bStop = true; }
  bool IsCancelled() const { return m_bStop; }

  /// False when something that should be in the list could not be had: a server did not answer, or
  /// a folder broke off.
  bool IsWhole() const { return m_isWhole && !m_patience.HasRunOut(); }

 private:
  /// A folder on the way down, and the walk over it.
  struct Level {
    TraceScope scope{L"BuildSelectionList_"};
    std::wstring folder;  // with a backslash at its end
    std::unique_ptr<DirectoryListing> listing;
    std::optional<FileIdentity> identity;  // once it was needed
    bool isLink = false;
  };

  bool IsFolder(const std::wstring& name);
  void AddSelected(std::wstring_view found, bool isFolder);
  void BuildSelectionList_(const std::wstring& szDir);
  void AddFound(const FoundFile& found);
  void Enter(const std::wstring& folder, bool isLink);
  void Leave();
  bool LeadsBack(const std::wstring& folder, bool isLink);
  void Add(const WrittenName& written, std::wstring_view found, bool isFolder);
  std::wstring GetName(const std::wstring& szName) const;
  void SetFolder(const std::wstring& szFolder);

  FileReader& m_files;
  NameList& m_list;
  bool m_shortNames;
  bool m_bStop = false;
  bool m_isWhole = true;
  ProgressView* m_view = nullptr;
  Patience m_patience = Patience::Endless;
  std::deque<Level> m_levels;
  std::size_t m_links = 0;  // of the levels
  std::size_t m_count = 0;
};

}  // namespace orvane
