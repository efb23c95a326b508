#pragma once

#include <vector>

#include "designer/RecentList.h"
#include "designerapp/Program.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// The lists that the menu keeps: to be seen, and cleared entry by entry or as a whole.
class ListsDialog : private windowing::DialogWindow {
 public:
  explicit ListsDialog(Program& program);

  void Show(HWND owner) { DialogWindow::Show(owner); }

 private:
  void Opened() override;
  void Command(int control, int notification) override;
  INT_PTR Other(UINT, WPARAM, LPARAM) override { return FALSE; }

  designer::RecentList& Chosen();
  void ShowEntries();
  void Forget(bool all);

  std::vector<designer::RecentList> m_lists;
};

}  // namespace orvane::designerapp
