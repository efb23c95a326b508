#include "designerapp/ProgramDialog.h"

#include <windowsx.h>

#include "designerapp/CommandIds.h"
#include "designerapp/Window.h"

namespace orvane::designerapp {
namespace {

using Layout = windowing::DialogLayout;
constexpr unsigned AtCorner = Layout::Left | Layout::Right | Layout::Top | Layout::Bottom;
constexpr Layout::Anchor Placing[] = {
    {IDC_PROGRAM_WORDS, Layout::Right},
    {IDC_PROGRAM_LIST, Layout::Right | Layout::Bottom},
    {IDOK, AtCorner},
    {IDCANCEL, AtCorner},
};

}  // namespace

ProgramDialog::ProgramDialog(Program& program)
    : DialogWindow(program.instance, IDD_PROGRAM, Placing),
      m_all(designer::StartMenuPrograms(program.platform)) {}

std::optional<designer::StartProgram> ProgramDialog::Ask(HWND owner) {
  Show(owner);
  return m_chosen;
}

void ProgramDialog::ShowPrograms() {
  m_shown = WithWords(m_all, TextOf(Control(IDC_PROGRAM_WORDS)));
  const HWND list = Control(IDC_PROGRAM_LIST);
  SetWindowRedraw(list, FALSE);
  ListBox_ResetContent(list);
  for (const auto& program : m_shown) ListBox_AddString(list, program.Text().c_str());
  ListBox_SetCurSel(list, 0);
  SetWindowRedraw(list, TRUE);
  EnableWindow(Control(IDOK), !m_shown.empty());
}

void ProgramDialog::Choose() {
  const int place = ListBox_GetCurSel(Control(IDC_PROGRAM_LIST));
  if (place < 0) return;
  m_chosen = m_shown.at(static_cast<std::size_t>(place));
  End(TRUE);
}

void ProgramDialog::Command(int control, int notification) {
  if (control == IDCANCEL)
    End(FALSE);
  else if (control == IDC_PROGRAM_WORDS && notification == EN_CHANGE)
    ShowPrograms();
  else if (control == IDOK || (control == IDC_PROGRAM_LIST && notification == LBN_DBLCLK))
    Choose();
}

}  // namespace orvane::designerapp
