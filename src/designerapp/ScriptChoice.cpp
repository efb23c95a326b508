#include "designerapp/ScriptChoice.h"

#include "designer/ActionList.h"
#include "designerapp/ChoiceMenu.h"

namespace orvane::designerapp {

std::wstring AskScript(HWND button, Program& program) {
  designer::ActionList list(program.platform.files, program.globals.actionServices);
  list.Open(program.globals.options.m_szShellCustomActionsFile);
  std::vector<std::wstring> names;
  for (const CustomAction& action : list.Actions())
    names.push_back(action.m_szDescription.empty()
                        ? action.m_szId
                        : action.m_szId + L": " + action.m_szDescription);
  if (names.empty())
    throw Error(Error::InvalidArgument,
                L"There are no custom actions yet. Make some with Tools, Custom Actions.");
  const auto chosen = ChooseText(button, names);
  return chosen ? list.Actions()[*chosen].m_szActions : std::wstring();
}

}  // namespace orvane::designerapp
