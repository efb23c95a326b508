#pragma once

#include <optional>
#include <vector>

#include "designer/StartMenu.h"
#include "designerapp/Program.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// Lets the user choose a program of the Start menu, narrowed down by words.
class ProgramDialog : private windowing::DialogWindow {
 public:
  explicit ProgramDialog(Program& program);

  /// None when the user gives up.
  std::optional<designer::StartProgram> Ask(HWND owner);

 private:
  void Opened() override { ShowPrograms(); }
  void Command(int control, int notification) override;
  INT_PTR Other(UINT, WPARAM, LPARAM) override { return FALSE; }

  void ShowPrograms();
  void Choose();

  std::vector<designer::StartProgram> m_all;
  std::vector<designer::StartProgram> m_shown;
  std::optional<designer::StartProgram> m_chosen;
};

}  // namespace orvane::designerapp
