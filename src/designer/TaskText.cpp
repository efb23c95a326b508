#include "designer/TaskText.h"

#include "commands/frmClipboardProgress.h"
#include "support/clsSprintf.h"

namespace orvane::designer {

TaskText TaskTextOf(clsOrvaneData task, const Sample& sample, const Platform& platform,
                    const ActionServices& services) {
  for (FieldText* text : {&task.m_szSelection_CmdPrefix, &task.m_szSelection_CmdSuffix,
                          &task.m_szSelection_FilePrefix, &task.m_szSelection_FileSuffix})
    *text = clsSprintf::TreatBackSlash(*text, services.codePage);
  SampleSelection selection(sample);
  frmClipboardProgress form(platform.files, platform.clipboard);
  form.m_pSelection = &selection;
  form.m_Data = &task;
  form.m_bShortNames = task.SelectionOptions_IsShortNames() != 0;
  form.BuildSelectionList(false);
  clsCustomActions parameters(services);
  parameters.m_szActions = task.m_szSelection_Parms;
  return {task.m_szSelection_Command + L" " +
              parameters.BuildActionString(L"<item goes here>", form.m_szCmdLine),
          form.m_szFile};
}

}  // namespace orvane::designer
