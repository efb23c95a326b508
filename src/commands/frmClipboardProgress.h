#pragma once

#include <cstddef>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "menudata/clsOrvaneData.h"
#include "platform/Clipboard.h"
#include "platform/DataObject.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "support/FileFilter.h"

namespace orvane {

/// Turns the selection into text: for the clipboard, a line for each name, or for a selection task,
/// the task's two lists. Works hidden, on the selected names alone, or behind the progress window,
/// with everything inside selected folders. For one run.
class frmClipboardProgress : public ProgressModel {
 public:
  frmClipboardProgress(FileReader& files, Clipboard& clipboard)
      : m_files(files), m_clipboard(clipboard) {}

  bool m_bStop = false;  // the user has cancelled
  DataObject* m_pSelection = nullptr;
  bool m_bShortNames = false;
  const clsOrvaneData* m_Data = nullptr;  // null: for the clipboard, otherwise the selection task
  std::wstring m_szCmdLine;
  std::wstring m_szFile;

  /// Error when the selection cannot be read or, in clipboard mode, the clipboard cannot be had.
  void BuildSelectionList(bool bRecursive);

  /// Shows the window, which builds the list with everything inside selected folders and closes.
  /// Fails as BuildSelectionList does.
  void ShowModal(Dialogs& dialogs, WindowHandle owner);

  std::wstring Title() override;
  std::wstring Caption() override;
  void Run(ProgressView& view) noexcept override;
  void Cancel() override { m_bStop = true; }

 private:
  /// A name as it is written: a folder's path, empty or with a backslash at its end, and what
  /// follows it. In two pieces, because a large tree is mostly a matter of copying its names.
  struct Written {
    std::wstring_view folder;
    std::wstring_view name;

    bool Has(wchar_t character) const {
      return folder.find(character) != std::wstring_view::npos ||
             name.find(character) != std::wstring_view::npos;
    }
  };

  void BuildLists(const FileNames& names, bool recursive);
  void Reserve(const FileNames& names);
  /// Lists everything under the folder, each folder before its contents, in the file system's
  /// order.
  void BuildSelectionList_(const std::wstring& szDir);
  bool Filters() const { return m_filter && !m_filter->IsEmpty(); }
  /// `found` is what a filter looks at: the name in one piece.
  void Add(const Written& written, std::wstring_view found, bool isFolder);
  void ProcessFilename(const Written& written, std::wstring_view found, bool isFolder);
  /// Turns a name into the form that is written.
  void GetName(std::wstring& szName) const;
  void SetFolder(const std::wstring& szFolder);

  FileReader& m_files;
  Clipboard& m_clipboard;
  ProgressView* m_view = nullptr;  // null while it works hidden
  std::optional<FileFilter> m_filter;
  std::wstring m_lines;  // for the clipboard
  std::size_t m_count = 0;
  Patience m_patience = Patience::Endless;
  std::exception_ptr m_failure;  // of the run behind the window
};

}  // namespace orvane
