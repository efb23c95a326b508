#include "commands/CopyOrMove.h"

#include "commands/SelectedNames.h"
#include "support/Trace.h"

namespace orvane {

void CopyOrMoveSelection(const frmCopyTo::Services& services, FileOperations& operations,
                         WindowHandle window, DataObject* dataObject, bool bCopy,
                         const std::wstring& szDestination) {
  TraceScope scope(L"CopyOrMoveSelection");
  Log(L"bCopy=", bCopy, L"  szDestination=", szDestination);
  frmCopyTo dialog(services);
  if (szDestination.empty()) {
    dialog.m_bCopyTo = bCopy;
    dialog.ShowModal(window);
  } else {
    dialog.m_bOk = true;
    dialog.m_szDest = szDestination;
  }
  if (!dialog.m_bOk) return;

  const auto function = bCopy ? FileOperations::Function::Copy : FileOperations::Function::Move;
  operations.Run(window, function, SelectedNames(dataObject), dialog.m_szDest,
                 FileOperations::AllowUndo);
}

}  // namespace orvane
