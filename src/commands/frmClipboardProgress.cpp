#include "commands/frmClipboardProgress.h"

#include "commands/SelectedNames.h"
#include "support/ProductName.h"

namespace orvane {

void frmClipboardProgress::Build(bool recursive, ProgressView* view) {
  TraceScope scope(L"BuildSelectionList");
  Log(L"bRecursive=", recursive);
  const FileNames names = SelectedNames(m_pSelection);
  Log(L"lCount=", names.Count());
  m_walk.Run(names, recursive, view);
}

void frmClipboardProgress::ShowModal(Dialogs& dialogs, WindowHandle owner) {
  if (!dialogs.ShowProgress(owner, *this)) return BuildSelectionList(true);
  if (m_failure) std::rethrow_exception(m_failure);
}

void frmClipboardProgress::Run(ProgressView& view) noexcept {
  try {
    Build(true, &view);
  } catch (...) {
    m_failure = std::current_exception();
  }
}

std::wstring frmClipboardProgress::Title() {
  return ProductName + (L" - " + Caption());
}

}  // namespace orvane
