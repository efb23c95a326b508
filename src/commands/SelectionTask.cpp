#include "commands/SelectionTask.h"

#include <string>

#include "commands/ClipboardInUse.h"
#include "commands/SelectionFile.h"
#include "commands/Warning.h"
#include "commands/frmClipboardProgress.h"
#include "platform/Launcher.h"
#include "support/Trace.h"
#include "support/clsSprintf.h"

namespace orvane {
namespace {

void TreatBackSlashes(clsOrvaneData& item, const CodePage& codePage) {
  for (FieldText* text : {&item.m_szSelection_CmdPrefix, &item.m_szSelection_CmdSuffix,
                          &item.m_szSelection_FilePrefix, &item.m_szSelection_FileSuffix})
    *text = clsSprintf::TreatBackSlash(*text, codePage);
}

void BuildLists(const CommandContext& context, WindowHandle window, bool recursive,
                frmClipboardProgress& form) {
  if (recursive)
    form.ShowModal(context.platform.dialogs, window);
  else
    form.BuildSelectionList(false);
}

void WriteFile(const CommandContext& context, const std::wstring& path, const std::wstring& text) {
  const std::optional<Error> error =
      WriteSelectionFile(context.platform.files, path, context.codePage.Encode(text));
  if (!error) return;
  Warn(context.platform.boxes, L"Could not open the selection file '" + path + L"'\r\n\r\nError " +
                                   std::to_wstring(error->Number()) + L": " + error->Description());
}

void StartCommand(const CommandContext& context, WindowHandle window, const clsOrvaneData& item,
                  const std::wstring& selection) {
  clsCustomActions template_(context.actions);
  template_.m_szActions = item.m_szSelection_Parms;
  context.platform.launcher.OpenEx(
      {.owner = window,
       .file = item.m_szSelection_Command,
       .parameters = template_.BuildActionString(L"<item goes here>", selection),
       .directory = item.m_szSelection_WorkingDir});
}

/// None of the three hinders the next.
void Deliver(const CommandContext& context, WindowHandle window, const clsOrvaneData& item,
             const frmClipboardProgress& form) {
  const Platform& platform = context.platform;
  if (item.SelectionOptions_IsClipboard() != 0 && !platform.clipboard.SetText(form.m_szFile))
    Warn(platform.boxes, ClipboardInUse().Description());
  if (!item.m_szSelection_File.empty()) WriteFile(context, item.m_szSelection_File, form.m_szFile);
  if (!item.m_szSelection_Command.empty()) StartCommand(context, window, item, form.m_szCmdLine);
}

}  // namespace

void ExecuteSelectionTask(const CommandContext& context, WindowHandle window, clsOrvaneData& item,
                          bool bShift, bool bCtrl) {
  TraceScope scope(L"ExecuteSelectionTask");
  frmClipboardProgress form(context.platform.files, context.platform.clipboard);
  form.m_pSelection = context.m_pDataObject.get();
  form.m_Data = &item;
  form.m_bShortNames = bCtrl || item.SelectionOptions_IsShortNames() != 0;
  TreatBackSlashes(item, context.codePage);
  BuildLists(context, window, bShift || item.SelectionOptions_IsRecurse() != 0, form);
  if (form.m_bStop) return;
  if (!item.m_szSelection_Filter.empty() && form.m_szFile.empty()) {
    Warn(context.platform.boxes, L"Selection Task - " + item.Caption() + L"\r\n\r\nFilter (" +
                                     item.m_szSelection_Filter + L") qualified nothing!");
    return;
  }
  Deliver(context, window, item, form);
}

}  // namespace orvane
