#include "host/WholeClick.h"

#include <cstdint>
#include <vector>

#include "host/Definition.h"
#include "host/SharedMenu.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {

using Item = clsOrvaneData;

WholeClick::WholeClick() {
  m_scene.Set(L"ShellShowIcons", 3);
  m_scene.Set(L"ShellShowHistoryMRU", 2);
  m_scene.Set(L"ShellConfigFile", m_scene.Path(L"Menu.cfg"));
  WriteDefinition(m_scene.Path(L"Menu.cfg"),
                  {{0, Item::TypeRoot, 0, {L"Orvane"}},
                   {1, Item::TypePopupMenu, 0, {L"Popup"}},
                   {2, Item::TypeDynamicFolder, 0, {m_scene.Folder(), L"Test", L"*.txt", L"0"}},
                   {1, Item::TypeFile, 0, {m_scene.Path(L"a.txt"), L"A"}},
                   {1, Item::TypeFolder, Item::OptionsCSIDL, {L"5", L"Documents"}},
                   {1, Item::TypeCustomAction, 0, {L"", L"Nothing"}}});
  m_selection = Select(m_scene.Folder(), {L"a.txt"});
}

WholeClick::~WholeClick() {
  SelectObject(m_context, m_old);
  DeleteObject(m_bitmap);
  DeleteDC(m_context);
}

namespace {

/// What a painter may change of a surface, and has to put back.
std::vector<std::uintptr_t> StateOf(HDC context) {
  std::vector<std::uintptr_t> state = {GetTextColor(context), GetBkColor(context)};
  for (const auto mode : {GetBkMode, GetROP2, GetStretchBltMode, GetMapMode, GetPolyFillMode})
    state.push_back(static_cast<std::uintptr_t>(mode(context)));
  for (const UINT kind : {OBJ_BITMAP, OBJ_BRUSH, OBJ_FONT, OBJ_PEN})
    state.push_back(reinterpret_cast<std::uintptr_t>(GetCurrentObject(context, kind)));
  return state;
}

}  // namespace

WholeClick::Outcome WholeClick::Run() {
  Outcome outcome;
  RightClick click(m_scene.Folder(), m_selection.Get());
  if (!click.handler) return outcome;
  const std::vector<std::uintptr_t> before = StateOf(m_context);
  outcome.count = click.Query();
  if (const HMENU root = FindSubmenu(click.menu, L"Orvane"))
    Walk(*click.handler.Get(), root, outcome);
  outcome.chosen = click.Choose(L"Nothing");
  outcome.isRestored = StateOf(m_context) == before;
  return outcome;
}

bool WholeClick::PaintAndAskAbout(IContextMenu3& handler, UINT id) {
  LRESULT result = 0;
  MEASUREITEMSTRUCT measure{};
  measure.CtlType = ODT_MENU;
  measure.itemID = id;
  handler.HandleMenuMsg2(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure), &result);
  DRAWITEMSTRUCT draw{};
  draw.CtlType = ODT_MENU;
  draw.itemID = id;
  draw.hDC = m_context;
  draw.rcItem = {0, 0, 300, 30};
  handler.HandleMenuMsg2(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw), &result);
  wchar_t text[200];
  for (const UINT what : {GCS_VERBA, GCS_HELPTEXTA, GCS_VERBW, GCS_HELPTEXTW, GCS_VALIDATEW})
    handler.GetCommandString(id - 1, what, nullptr, reinterpret_cast<char*>(text), 100);
  return measure.itemWidth > 25;
}

void WholeClick::Walk(IContextMenu3& handler, HMENU menu, Outcome& outcome) {
  LRESULT result = 0;
  handler.HandleMenuMsg2(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0, &result);
  handler.HandleMenuMsg2(WM_MENUCHAR, 'a', reinterpret_cast<LPARAM>(menu), &result);
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const UINT id = IdAt(menu, i);
    if (id != 0 && !PaintAndAskAbout(handler, id)) ++outcome.unmeasured;
    if (const HMENU submenu = GetSubMenu(menu, i)) Walk(handler, submenu, outcome);
  }
}

}  // namespace orvane::host
