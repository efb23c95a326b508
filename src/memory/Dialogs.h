#pragma once

#include "memory/Answers.h"
#include "memory/Faults.h"
#include "memory/Shell.h"
#include "platform/Dialogs.h"

namespace orvane::memory {

/// Dialogs that the scripted answers of a session work:
///   copy dialog     "ok" takes the destination as it stands, "mru_3" clicks the third recent one,
///                   "browse" the browse button; any other text is typed and confirmed with OK
///   browse dialog   "ok" takes what is selected; any other text is the path that is picked
///   both            "cancel", or no answer left, gives up
/// What progress windows show is kept.
class Dialogs : public orvane::Dialogs {
 public:
  Dialogs(Shell& shell, Faults& faults, Answers& answers)
      : m_shell(shell), m_faults(faults), m_answers(answers) {}

  bool ShowCopyTo(WindowHandle owner, CopyToModel& model) override;
  bool ShowProgress(WindowHandle owner, ProgressModel& model) override;
  Picked Browse(WindowHandle owner, const ItemIdList& root, const std::wstring& title,
                std::uint32_t flags, BrowseModel& model) override;

  int foldersUntilCancel = -1;             // cancels the progress at that folder; negative: never
  std::vector<std::wstring> shownFolders;  // by progress windows
  std::size_t shownCount = 0;
  std::vector<std::wstring> shownTitles;  // of all dialogs

 private:
  class Progress;
  class BrowseRecord;

  Shell& m_shell;
  Faults& m_faults;
  Answers& m_answers;
};

}  // namespace orvane::memory
