#include "commands/CopyNames.h"

#include "commands/ClipboardInUse.h"
#include "commands/ClipboardLines.h"
#include "commands/Warning.h"
#include "commands/frmClipboardProgress.h"
#include "platform/Clipboard.h"

namespace orvane {

void CopyNamesToClipboard(const Platform& platform, WindowHandle window, DataObject* selection,
                          bool shortNames, bool recursive) {
  if (!platform.clipboard.Clear()) throw ClipboardInUse();
  ClipboardLines lines;
  frmClipboardProgress form(platform.files, selection, lines, shortNames,
                            frmClipboardProgress::CopyCaption);
  if (recursive)
    form.ShowModal(platform.dialogs, window);
  else
    form.BuildSelectionList(false);
  if (!platform.clipboard.SetText(lines.Text())) throw ClipboardInUse();
  if (!form.IsWhole() && !form.IsCancelled()) Warn(platform.boxes, frmClipboardProgress::NotWhole);
}

}  // namespace orvane
