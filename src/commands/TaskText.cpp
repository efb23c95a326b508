#include "commands/TaskText.h"

#include "commands/TaskLists.h"
#include "commands/frmClipboardProgress.h"
#include "support/clsSprintf.h"

namespace orvane {

std::wstring TaskText::CommandLine(const clsOrvaneData& task) const {
  const std::wstring& program = task.m_szSelection_Command;
  if (program.empty()) return {};
  const bool isQuoted = program.find(L' ') != program.npos && !program.starts_with(L'"');
  return (isQuoted ? L'"' + program + L'"' : program) + L" " + parameters;
}

TaskText TaskTextOf(clsOrvaneData task, DataObject& selection, bool recursive, FileReader& files,
                    const ActionServices& services) {
  TreatBackSlashes(task, services.codePage);
  const bool shortNames = task.SelectionOptions_IsShortNames() != 0;
  TaskLists lists(task, shortNames);
  frmClipboardProgress form(files, &selection, lists, shortNames,
                            frmClipboardProgress::TaskCaption);
  form.BuildSelectionList(recursive);
  return {TaskParameters(task, lists.CmdLine(), services), lists.File(), form.IsWhole()};
}

void TreatBackSlashes(clsOrvaneData& task, const CodePage& codePage) {
  for (FieldText* text : {&task.m_szSelection_CmdPrefix, &task.m_szSelection_CmdSuffix,
                          &task.m_szSelection_FilePrefix, &task.m_szSelection_FileSuffix})
    *text = clsSprintf::TreatBackSlash(*text, codePage);
}

std::wstring TaskParameters(const clsOrvaneData& task, const std::wstring& selection,
                            const ActionServices& services) {
  clsCustomActions parameters(services);
  parameters.m_szActions = task.m_szSelection_Parms;
  return parameters.BuildActionString(L"<item goes here>", selection);
}

}  // namespace orvane
