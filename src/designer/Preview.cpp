#include "designer/Preview.h"

#include <utility>

#include "menudata/ShellPaths.h"

namespace orvane::designer {
namespace {

constexpr const wchar_t* UnsavedMenu = L"\\\\?\\the menu that is designed";

std::wstring Joined(const Script& script) {
  std::wstring text;
  for (const std::wstring& sentence : script) text += (text.empty() ? L"" : L"\n") + sentence;
  return text;
}

}  // namespace

Preview::Preview(const Platform& platform, std::vector<std::byte> definition, const Sample& sample)
    : m_rehearsal(platform), m_globals(m_rehearsal.Bundle()), m_handler(m_globals) {
  m_rehearsal.Files().Put(UnsavedMenu, std::move(definition));
  m_globals.options.m_szShellConfigFile = UnsavedMenu;
  m_globals.options.m_bDebugEnable = false;
  m_globals.debug.Terminate();
  m_globals.timing.Terminate();
  m_globals.options.m_bShellEnable = true;
  std::shared_ptr<DataObject> selection;
  if (!sample.names.empty()) selection = std::make_shared<SampleSelection>(sample);
  m_handler.IShellExtInit_Initialize(
      GetPidlFromPath(platform.shell, WindowHandle::None, sample.folder), std::move(selection), 0);
}

void Preview::Build(MenuHandle menu) {
  m_handler.IContextMenu_QueryContextMenuEx(menu, 0, FirstId, LastId, 0);
  m_rehearsal.Take();
}

std::wstring Preview::HelpText(std::int32_t id) const {
  constexpr std::uint32_t WideHelpText = 5;  // GCS_HELPTEXTW
  return m_handler
      .IContextMenu_GetCommandString(
          {.idCmd = id - FirstId, .uFlags = WideHelpText, .pszName = 0, .cchMax = 0})
      .text;
}

std::wstring Preview::Outcome(std::int32_t id) {
  m_rehearsal.Take();
  m_handler.IContextMenu_InvokeCommand(
      {.window = WindowHandle::None, .byOffset = true, .offset = id - FirstId, .verb = {}});
  const std::wstring said = Joined(m_rehearsal.Take());
  return said.empty() ? HelpText(id) : said;
}

}  // namespace orvane::designer
