#include "shellext/MenuWriter.h"

#include <utility>

#include "menudata/ShellPaths.h"
#include "support/Trace.h"

namespace orvane {

bool MenuWriter::CanInsert() const {
  if (m_state.ids.CanTake()) return true;
  Log(L"Limit hit=", m_state.ids.Next(), L":", m_state.ids.Last());
  return false;
}

bool MenuWriter::Insert(const Target& target, MenuItem item) {
  if (item.command.Id() == Command::NoId) item.command.Id(m_state.ids.Take());
  if (!m_drawing.AddMenuWithBitmap(target.menu, NextPosition(target), std::move(item)))
    return false;
  if (target.position) ++*target.position;
  return true;
}

bool MenuWriter::InsertBuiltIn(const Target& target, std::int32_t type, Picture picture,
                               UniqueMenu submenu) {
  auto record = m_state.commands.NewRecord();
  record->m_lType = type;
  MenuItem item;
  item.caption = Caption(*record);
  item.picture = picture;
  item.submenu = std::move(submenu);
  item.command = m_state.commands.Add(std::move(record));
  return Insert(target, std::move(item));
}

void MenuWriter::AddSubmenu(MenuItem& item) {
  item.submenu = CreatePopup();
  Log(L"NewMenu=", Hex(item.submenu.get()));
}

bool MenuWriter::InsertDynamicFolder(const Target& target, MenuItem item) {
  const Command folder = item.command;
  if (!Insert(target, std::move(item))) return false;
  m_state.dynamicMenus.Add(folder.Submenu(), folder);
  return true;
}

void MenuWriter::AppendPlaceholder(MenuHandle submenu, std::int32_t type) {
  clsOrvaneData placeholder;
  placeholder.m_lType = type;
  MenuEntry entry;
  entry.caption = Caption(placeholder);
  const bool empty = type == clsOrvaneData::TypeDynamicFolderEmpty;
  entry.id = static_cast<std::uint32_t>(empty ? m_state.emptyId : m_state.noAnswerId);
  entry.ownerDraw = m_globals.options.m_bShellOwnerDraw;
  entry.state = entry.ownerDraw ? MenuEntry::State::Disabled : MenuEntry::State::Grayed;
  m_globals.platform.menus.Insert(submenu, Menus::Append, entry);
}

void MenuWriter::InsertSeparator(const Target& target) {
  MenuEntry separator;
  separator.separator = true;
  const bool inserted =
      m_globals.platform.menus.Insert(target.menu, NextPosition(target), separator);
  if (inserted && target.position) ++*target.position;
}

bool MenuWriter::HasEntries(MenuHandle menu) const {
  return m_globals.platform.menus.Count(menu) > 0;
}

UniqueMenu MenuWriter::CreatePopup() {
  Menus& menus = m_globals.platform.menus;
  UniqueMenu popup(menus, menus.CreatePopup());
  if (!popup) throw Error(Error::OutOfMemory, L"Out of memory", L"CreatePopupMenu");
  return popup;
}

void MenuWriter::DressFolder(const clsOrvaneData& record, MenuItem& item) {
  if (IsCurrentFolder(record))
    item.picture = Picture::CurrentFolder;
  else if (m_globals.options.m_bShellUseOwnFolderBitmap)
    item.picture = Picture::OwnFolder;
  else
    item.picture = Picture::OwnIcon;

  // A special folder's location is a number, which has no icon; the folder itself has one.
  if (item.picture == Picture::OwnIcon && record.OptionsIsCSIDL()) {
    Shell& shell = m_globals.platform.shell;
    item.iconFile =
        PidlToPath(shell, shell.SpecialFolder(WindowHandle::None, record.FolderCSIDL()));
  }
}

std::wstring MenuWriter::Caption(const clsOrvaneData& record) const {
  bool trim = false;
  return m_globals.tools.GetMenuCaption(record, trim);
}

std::int32_t MenuWriter::NextPosition(const Target& target) const {
  return target.position ? *target.position : Menus::Append;
}

bool MenuWriter::IsCurrentFolder(const clsOrvaneData& record) const {
  const std::wstring& current = m_state.selection.folder;
  if (current.empty()) return false;
  if (record.OptionsIsCSIDL())
    return IsCurrentFolderCSIDL(m_globals.platform.shell, WindowHandle::None, record.FolderCSIDL(),
                                current);
  return record.Location() == current;
}

}  // namespace orvane
