#include "designerapp/FindDialog.h"

#include "designerapp/Window.h"

namespace orvane::designerapp {

std::optional<std::wstring> FindDialog::Ask(HWND owner, const std::wstring& start) {
  m_text = start;
  if (Show(owner).value_or(FALSE) == FALSE || m_text.empty()) return std::nullopt;
  return m_text;
}

void FindDialog::Opened() {
  SetWindowTextW(Control(IDC_FIND_TEXT), m_text.c_str());
}

void FindDialog::Command(int control, int) {
  if (control == IDOK) {
    m_text = TextOf(Control(IDC_FIND_TEXT));
    End(TRUE);
  } else if (control == IDCANCEL) {
    End(FALSE);
  }
}

}  // namespace orvane::designerapp
