#include "commands/CopyOrMove.h"

#include "commands/SelectedNames.h"
#include "commands/Warning.h"
#include "support/FullPath.h"
#include "support/Trace.h"

namespace orvane {
namespace {

/// The names as the shell's operation takes them, which knows no long-path prefix. None, and the
/// user is told why, when one of them stands for every file that it matches.
std::optional<FileNames> OperationNames(MessageBoxes& boxes, const FileNames& selected) {
  FileNames names;
  for (auto rest = selected.All(); !rest.empty();) {
    const std::wstring name = WithoutLongPrefix(FileNames::Take(rest));
    if (name.find_first_of(L"*?") != std::wstring::npos) {
      Warn(boxes, L"A name with * or ? in it cannot be copied or moved:\r\n\r\n" + name);
      return std::nullopt;
    }
    names.Add(name);
  }
  return names;
}

}  // namespace

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
  const auto names = OperationNames(services.boxes, SelectedNames(dataObject));
  if (names) operations.Run(window, function, *names, dialog.m_szDest, FileOperations::AllowUndo);
}

}  // namespace orvane
