#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

#include "designer/ActionList.h"
#include "designerapp/CommandIds.h"
#include "designerapp/WindowPicker.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// The custom actions of the file that the settings name: the list, what the chosen one has, and
/// what is wrong with them, kept up while typing.
class ActionsDialog : private windowing::DialogWindow {
 public:
  explicit ActionsDialog(Program& program);

  /// Until the user closes it. Error when the file cannot be read.
  void Ask(HWND owner);

 private:
  void Opened() override;
  void Rescaled() override;
  void Command(int control, int notification) override;
  INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) override;

  void ListCommand(int control);
  bool MayLeave();
  bool Save();
  int AskUser(const wchar_t* text, UINT style) const;

  bool HasAction() const { return m_place < m_list.Actions().size(); }
  const CustomAction& Current() const { return m_list.Actions()[m_place]; }
  void ShowList(std::size_t place);
  void ShowAction();
  void Enable();
  void Edited();
  CustomAction Typed() const;
  void Picked(HWND window);
  void ShowPicked(HWND window);
  void ShowFindings();
  void GoTo(const ActionFinding& finding);
  void GoToChosenFinding();
  void Focus(int control) const;

  void Notify(NMHDR& header);
  void Answer(UINT_PTR list, LVITEMW& asked);
  std::wstring CellOfAction(std::size_t row, int column) const;
  std::wstring CellOfFinding(std::size_t row, int column) const;

  Program& m_program;
  designer::ActionList m_list;
  std::size_t m_place = 0;  // of the chosen action
  ActionFindings m_findings;
  WindowPicker m_picker;
  std::wstring m_text;  // of the cell that a list asks for
  bool m_filling = false;
};

}  // namespace orvane::designerapp
