#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "designer/WindowTest.h"
#include "designerapp/CommandIds.h"
#include "designerapp/WindowPicker.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// Shows which open windows an action matches, and which criterion of it decided that.
class ActionTestDialog : private windowing::DialogWindow {
 public:
  ActionTestDialog(Program& program, const CustomAction& action);

  void Ask(HWND owner) { Show(owner); }

 private:
  void Opened() override;
  void Rescaled() override;
  void Command(int control, int notification) override;
  INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) override;

  void Look();
  designer::WindowTest Test(HWND window);
  void ShowTests();
  void Answer(LVITEMW& asked);

  Program& m_program;
  const CustomAction& m_action;
  WindowPicker m_picker;
  std::vector<designer::WindowTest> m_tests;
  std::wstring m_text;  // of the cell that the list asks for
};

}  // namespace orvane::designerapp
