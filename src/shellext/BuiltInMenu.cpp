#include "shellext/BuiltInMenu.h"

#include <utility>

#include "support/Trace.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

/// A command that its show flag switches on, where its condition holds.
struct ShownCommand {
  std::int32_t type;
  bool (clsOptions::*isShown)() const;
  bool (*applies)(const Selection&);
  std::wstring_view log;
};

bool HasSelection(const Selection& selection) {
  return selection.count > 0;
}

constexpr ShownCommand Commands[] = {
    {Data::TypeOpenInNewWindow, &clsOptions::ShowFlag_IsOpen,
     [](const Selection& selection) { return !selection.file.empty(); },
     L"Adding Open in new window open"},
    {Data::TypeCopyFilenamesToClipboard, &clsOptions::ShowFlag_IsCopyToClipboard,
     [](const Selection& selection) { return selection.dataObject != nullptr; },
     L"Adding Copy to clipboard"},
    {Data::TypeRunDialog, &clsOptions::ShowFlag_IsRunDialog,
     [](const Selection& selection) { return selection.count == 1; }, L"Adding run dialog"},
    {Data::TypeCopyTo, &clsOptions::ShowFlag_IsCopyTo, HasSelection, L"Adding Copy To"},
    {Data::TypeMoveTo, &clsOptions::ShowFlag_IsMoveTo, HasSelection, L"Adding Move To"},
    {Data::TypeCommandPrompt, &clsOptions::ShowFlag_IsCommandPrompt,
     [](const Selection& selection) { return !selection.folder.empty(); },
     L"Adding command prompt"},
    {Data::TypeTaskManager, &clsOptions::ShowFlag_IsTaskManager,
     [](const Selection&) { return true; }, L"Adding TaskManager"},
};

}  // namespace

void BuiltInMenu::Add() {
  if (AddHistory() && AddQuickAccess() && AddDesigner() && AddResets()) AddCommands();
}

bool BuiltInMenu::AddHistory() {
  const std::int32_t display = m_globals.options.m_lShellShowHistoryMRU;
  const std::int32_t count = m_globals.history.FileCount();
  if (display < clsOptions::OptionsMenuDisplay_ShowInMainMenu || count < 1) return true;
  Log(L"m_lShellShowHistoryMRU=", display, L"  FileCount=", count);
  Target target = ShellMenu();
  return OpenList(display, Data::TypePopupHistory, target) &&
         AddListEntries(m_globals.history, target);
}

bool BuiltInMenu::AddQuickAccess() {
  const std::int32_t display = m_globals.options.m_lShellShowQuickAccessMRU;
  if (display < clsOptions::OptionsMenuDisplay_ShowInMainMenu) return true;
  Log(L"m_lShellShowQuickAccessMRU=", display, L"  FileCount=", m_globals.quickAccess.FileCount());
  Target target = ShellMenu();
  if (display == clsOptions::OptionsMenuDisplay_ShowInMainMenu && m_writer.HasEntries(target.menu))
    m_writer.InsertSeparator(target);
  if (!OpenList(display, Data::TypePopupQuickAccess, target) ||
      !AddListEntries(m_globals.quickAccess, target) || !m_writer.CanInsert())
    return false;
  m_writer.InsertBuiltIn(target, Data::TypeAddToQuickAccessMRU, Picture::Add);
  return true;
}

/// Leaves the target in the shell's menu, or makes it a popup of the root submenu.
bool BuiltInMenu::OpenList(std::int32_t display, std::int32_t popupType, Target& target) {
  if (display == clsOptions::OptionsMenuDisplay_ShowInMainMenu) return true;
  if (!m_writer.CanInsert()) return false;
  SeparateRoot();
  UniqueMenu popup = m_writer.CreatePopup();
  target = {popup.get()};
  return m_writer.InsertBuiltIn(Root(), popupType, Picture::None, std::move(popup));
}

bool BuiltInMenu::AddListEntries(const clsMRU& list, const Target& target) {
  for (std::int32_t i = 1; i <= list.FileCount(); ++i) {
    if (!m_writer.CanInsert()) return false;
    auto record = m_state.commands.NewRecord();
    m_globals.tools.BreakdownHistoryMRU(list.File(i), *record);
    MenuItem item;
    item.caption = L"&" + std::to_wstring(i) + L" " + clsMRU::GetShortenedName(record->Caption());
    if (record->OptionsIsBrowseAndOpen()) item.caption += L"...";
    item.trimCaption = true;
    DressListEntry(*record, item);
    item.command = m_state.commands.Add(std::move(record));
    m_writer.Insert(target, std::move(item));
  }
  return true;
}

void BuiltInMenu::DressListEntry(const clsOrvaneData& record, MenuItem& item) {
  if (record.IsTypeFile()) item.picture = Picture::OwnIcon;
  if (record.IsTypeCustomAction()) item.picture = Picture::Action;
  if (!record.IsTypeFolder()) return;
  try {
    m_writer.DressFolder(record, item);
  } catch (const Error&) {
    // A spoilt list entry keeps its place, plain: the command that resets the list is in the same
    // menu and must stay within reach.
  }
}

bool BuiltInMenu::AddDesigner() {
  if (!m_writer.CanInsert()) return false;
  SeparateRoot();
  Log(L"Adding designer");
  m_writer.InsertBuiltIn(Root(), Data::TypeDesigner, Picture::Designer);
  return true;
}

bool BuiltInMenu::AddResets() {
  Log(L"Adding MRU options");
  bool separated = false;
  const std::pair<const clsMRU&, std::int32_t> resets[] = {
      {m_globals.history, Data::TypeResetHistoryMRU},
      {m_globals.quickAccess, Data::TypeResetQuickAccessMRU}};
  for (const auto& [list, type] : resets) {
    if (list.FileCount() < 1) continue;
    if (!m_writer.CanInsert()) return false;
    if (!std::exchange(separated, true)) m_writer.InsertSeparator(Root());
    m_writer.InsertBuiltIn(Root(), type, Picture::Reset);
  }
  return true;
}

void BuiltInMenu::AddCommands() {
  const bool inSubMenu = m_globals.options.ShowFlag_IsInSubMenu();
  const Target target = inSubMenu ? Root() : ShellMenu();
  bool first = true;
  bool separated = false;
  for (const ShownCommand& command : Commands) {
    if (!(m_globals.options.*command.isShown)() || !command.applies(m_state.selection)) continue;
    if (!m_writer.CanInsert()) break;
    if (std::exchange(first, false) && m_writer.HasEntries(target.menu)) {
      m_writer.InsertSeparator(target);
      separated = true;
    }
    Log(command.log);
    m_writer.InsertBuiltIn(target, command.type, Picture::None);
  }
  if (separated && !inSubMenu) m_writer.InsertSeparator(target);
}

void BuiltInMenu::SeparateRoot() {
  if (m_writer.HasEntries(m_state.rootMenu)) m_writer.InsertSeparator(Root());
}

}  // namespace orvane
