#include "commands/SelectionTask.h"

#include <string>

#include "commands/ClipboardInUse.h"
#include "commands/SelectionFile.h"
#include "commands/TaskLists.h"
#include "commands/TaskText.h"
#include "commands/Warning.h"
#include "commands/frmClipboardProgress.h"
#include "platform/Clipboard.h"
#include "platform/Launcher.h"
#include "support/ProductName.h"

namespace orvane {
namespace {

/// Whether the user wants the task to run on less than he selected.
bool ConfirmIncomplete(MessageBoxes& boxes) {
  const std::wstring text = frmClipboardProgress::NotWhole;
  return boxes.Show(text + L"\r\n\r\nThe task will work on what was found.", g_szAppTitle,
                    MessageBoxes::Icon::Exclamation,
                    MessageBoxes::Buttons::OkCancel) == MessageBoxes::Answer::Ok;
}

/// False when there is nothing to go on with, of which the user knows.
bool BuildLists(const CommandContext& context, WindowHandle window, const clsOrvaneData& item,
                bool recursive, bool shortNames, TaskLists& lists) {
  const Platform& platform = context.platform;
  frmClipboardProgress form(platform.files, context.selection.dataObject.get(), lists, shortNames,
                            frmClipboardProgress::TaskCaption);
  if (recursive)
    form.ShowModal(platform.dialogs, window);
  else
    form.BuildSelectionList(false);
  if (form.IsCancelled()) return false;
  if (!form.IsWhole() && !ConfirmIncomplete(platform.boxes)) return false;
  if (item.m_szSelection_Filter.empty() || !lists.File().empty()) return true;
  Warn(platform.boxes, L"Selection Task - " + item.Caption() + L"\r\n\r\nFilter (" +
                           item.m_szSelection_Filter + L") qualified nothing!");
  return false;
}

void WriteFile(const CommandContext& context, const std::wstring& path, const std::wstring& text) {
  const auto failure =
      WriteSelectionFile(context.platform.files, path, context.codePage.Encode(text));
  if (!failure) return;
  Warn(context.platform.boxes,
       std::wstring(L"Could not ") + (failure->opened ? L"write" : L"open") +
           L" the selection file '" + path + L"'\r\n\r\nError " +
           std::to_wstring(failure->error.Number()) + L": " + failure->error.Description());
}

void StartCommand(const CommandContext& context, WindowHandle window, const clsOrvaneData& item,
                  const std::wstring& selection) {
  context.platform.launcher.OpenEx({.owner = window,
                                    .file = item.m_szSelection_Command,
                                    .parameters = TaskParameters(item, selection, context.actions),
                                    .directory = item.m_szSelection_WorkingDir});
}

/// None of the three hinders the next.
void Deliver(const CommandContext& context, WindowHandle window, const clsOrvaneData& item,
             const TaskLists& lists) {
  const Platform& platform = context.platform;
  if (item.SelectionOptions_IsClipboard() != 0 && !platform.clipboard.SetText(lists.File()))
    Warn(platform.boxes, ClipboardInUse().Description());
  if (!item.m_szSelection_File.empty()) WriteFile(context, item.m_szSelection_File, lists.File());
  if (!item.m_szSelection_Command.empty()) StartCommand(context, window, item, lists.CmdLine());
}

}  // namespace

void ExecuteSelectionTask(const CommandContext& context, WindowHandle window, clsOrvaneData& item,
                          bool bShift, bool bCtrl) {
  TraceScope scope(L"ExecuteSelectionTask");
  const bool shortNames = bCtrl || item.SelectionOptions_IsShortNames() != 0;
  const bool recursive = bShift || item.SelectionOptions_IsRecurse() != 0;
  TreatBackSlashes(item, context.codePage);
  TaskLists lists(item, shortNames);
  if (BuildLists(context, window, item, recursive, shortNames, lists))
    Deliver(context, window, item, lists);
}

}  // namespace orvane
