#pragma once

#include <exception>
#include <string>

#include "commands/SelectionWalk.h"

namespace orvane {

/// The progress window of a walk over the selection, with its Cancel, and the same walk without a
/// window. For one run.
class frmClipboardProgress : private ProgressModel {
 public:
  /// What the progress area is headed with.
  static constexpr const wchar_t* CopyCaption = L"Copy to Clipboard Progress";
  static constexpr const wchar_t* TaskCaption = L"Selection Task Progress";

  /// All are kept. No selection (null) is one without names.
  frmClipboardProgress(FileReader& files, DataObject* selection, NameList& list, bool shortNames,
                       const wchar_t* caption)
      : m_pSelection(selection), m_walk(files, list, shortNames), m_caption(caption) {}

  /// With `bRecursive` everything inside selected folders too. Error when the selection cannot be
  /// read.
  void BuildSelectionList(bool bRecursive) { Build(bRecursive, nullptr); }

  /// Shows the window, which builds the list with everything inside selected folders and closes.
  /// Fails as BuildSelectionList does, which it is where there can be no window.
  void ShowModal(Dialogs& dialogs, WindowHandle owner);

  bool IsCancelled() const { return m_walk.IsCancelled(); }
  /// False when the list lacks something; the user should know before anybody relies on it.
  bool IsWhole() const { return m_walk.IsWhole(); }
  static constexpr const wchar_t* NotWhole =
      L"Some folders did not answer or could not be read to their end, so the list of names is not "
      L"complete.";

 private:
  std::wstring Title() override;
  std::wstring Caption() override { return m_caption; }
  void Run(ProgressView& view) noexcept override;
  void Cancel() override { m_walk.Cancel(); }

  void Build(bool recursive, ProgressView* view);

  DataObject* m_pSelection;
  SelectionWalk m_walk;
  const wchar_t* m_caption;
  std::exception_ptr m_failure;  // of the run behind the window
};

}  // namespace orvane
