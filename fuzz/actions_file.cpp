// The custom actions file: whatever its bytes, its actions are listed in order and each once,
// loaded, and matched against a window, or an Error says what is wrong with a number.

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string_view>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "memory/Desktop.h"
#include "support/CodePage.h"
#include "support/Error.h"

using namespace orvane;

namespace {

const std::wstring Path = L"C:\\CustomActions.ini";

void LookAtAll(const ActionServices& services, WindowHandle window) {
  clsCustomActions actions(services);
  std::vector<std::wstring> ids;
  const std::int32_t count = actions.LoadEx(ids, clsCustomActions::TypeAny, Path, false);
  if (count != actions.Count(clsCustomActions::TypeAny, Path)) std::abort();
  if (std::set(ids.begin(), ids.end()).size() != static_cast<std::size_t>(count)) std::abort();

  std::int32_t order = INT32_MIN;
  for (const std::wstring& id : ids) {
    try {
      actions.Load(id, Path);
      if (actions.m_lOrder < order) std::abort();
      order = actions.m_lOrder;
    } catch (const Error&) {
    }
  }
  const WindowHandle found = actions.MatchWindow(window, Path);
  if (found != WindowHandle::None && (found != window || !actions.IsOptionEnabled())) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  memory::Desktop desktop;
  desktop.files.AddFile(Path, std::string_view(reinterpret_cast<const char*>(data), size));
  memory::Windows::Window record;
  record.className = L"Edit";
  record.caption = L"Save As";
  const WindowHandle window = desktop.windows.Add(record);

  const CodePage codePage(desktop.system.AnsiCharacters());
  clsProcess process(desktop.processes, desktop.system);
  try {
    LookAtAll({desktop.files, desktop.profiles, desktop.windows, process, desktop.keyboard,
               desktop.clock, desktop.locale, desktop.boxes, codePage},
              window);
  } catch (const Error&) {
  }
  return 0;
}
