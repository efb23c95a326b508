#include "designer/TaskText.h"

#include "commands/TaskLists.h"
#include "commands/frmClipboardProgress.h"
#include "support/clsSprintf.h"

namespace orvane::designer {

TaskText TaskTextOf(clsOrvaneData task, const Sample& sample, const Platform& platform,
                    const ActionServices& services) {
  for (FieldText* text : {&task.m_szSelection_CmdPrefix, &task.m_szSelection_CmdSuffix,
                          &task.m_szSelection_FilePrefix, &task.m_szSelection_FileSuffix})
    *text = clsSprintf::TreatBackSlash(*text, services.codePage);
  SampleSelection selection(sample);
  const bool shortNames = task.SelectionOptions_IsShortNames() != 0;
  TaskLists lists(task, shortNames);
  frmClipboardProgress(platform.files, &selection, lists, shortNames, L"")
      .BuildSelectionList(false);
  clsCustomActions parameters(services);
  parameters.m_szActions = task.m_szSelection_Parms;
  return {task.m_szSelection_Command + L" " +
              parameters.BuildActionString(L"<item goes here>", lists.CmdLine()),
          lists.File()};
}

}  // namespace orvane::designer
