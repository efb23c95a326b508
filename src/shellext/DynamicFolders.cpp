#include "shellext/DynamicFolders.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/FileSystem.h"
#include "support/FileFilter.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

// Every folder shown is a menu of its own, and a process may have 10,000 menus, windows and the
// like in all (Windows: "User Objects"). Beyond this many the host would be left without.
constexpr std::int32_t MaxSubmenus = 4000;

}  // namespace

void DynamicFolders::Open(MenuHandle submenu) {
  m_state.ids.ResumeDynamic();
  Log(L"WM_INITMENUPOPUP - m_lMenuCmdId=", m_state.ids.Next());
  DynamicMenus::Entry entry = m_state.dynamicMenus.Find(submenu);
  if (!entry) return;
  if (!entry.IsFilled() && CreateDynamicMenu(entry)) entry.SetFilled();
  m_state.ids.SuspendDynamic();
}

/// False when the folder did not answer.
bool DynamicFolders::CreateDynamicMenu(DynamicMenus::Entry entry) {
  TraceScope scope(L"CreateDynamicMenu");
  try {
    return Fill(std::move(entry));
  } catch (...) {
    scope.Caught();
    return true;
  }
}

bool DynamicFolders::Fill(DynamicMenus::Entry entry) {
  Menus& menus = m_globals.platform.menus;
  const MenuHandle menu = entry.Submenu();
  const auto folder = entry.Folder().Record();
  Log(L"hMenu=", Hex(menu), L"  szDir=", folder->Location());
  Listed listed;
  const bool answered = List(*folder, listed);

  Log(L"Sorting ", listed.keys.Count());
  const std::vector<std::int32_t> order = listed.keys.Sort_Bubble(L"m_szKey");
  for (std::size_t i = 1; i < order.size(); ++i)
    AddEntry(listed.commands[static_cast<std::size_t>(order[i]) - 1], menu);

  const std::int32_t count = menus.Count(menu);
  if (count > 1) {
    Log(L"MenuCount=", count);
    menus.Remove(menu, 0);
    Log(L"Killed empty entry");
  } else {
    SayWhatIsThere(std::move(entry), answered);
  }
  return answered;
}

/// Sees to it that the placeholder says "(Empty)", or that there was no answer.
void DynamicFolders::SayWhatIsThere(DynamicMenus::Entry entry, bool answered) {
  if (answered != entry.SaysNoAnswer() || !TakeNoAnswerId()) return;
  m_globals.platform.menus.Remove(entry.Submenu(), 0);
  m_writer.AppendPlaceholder(entry.Submenu(), answered ? clsOrvaneData::TypeDynamicFolderEmpty
                                                       : clsOrvaneData::TypeDynamicFolderNoAnswer);
  entry.SayNoAnswer(!answered);
}

/// One entry of the command table stands for all folders that did not answer.
bool DynamicFolders::TakeNoAnswerId() {
  if (m_state.noAnswerId != 0) return true;
  if (!m_writer.CanInsert()) return false;
  auto record = m_state.commands.NewRecord();
  record->m_lType = clsOrvaneData::TypeDynamicFolderNoAnswer;
  m_state.noAnswerId = m_state.ids.Take();
  m_state.commands.Add(std::move(record)).Id(m_state.noAnswerId);
  return true;
}

/// Records for the kept entries, each with its identifier, and their sort keys. False when nothing
/// came in time.
bool DynamicFolders::List(const clsOrvaneData& folder, Listed& listed) {
  std::wstring path = folder.Location();
  if (!path.ends_with(L'\\')) path += L'\\';
  const Patience patience = Patience::Chosen;
  const auto listing = m_globals.platform.files.List(path, patience);
  if (!listing) return !patience.HasRunOut();

  const FileFilter filter(folder.m_szDFolder_Filter);
  const std::int32_t maximum = m_globals.options.m_lShellMaxMenuText;
  std::int32_t submenus = m_state.dynamicMenus.Count();
  for (FoundFile found; listing->Next(found);) {
    const bool isFolder = (found.attributes & FileAttribute::Directory) != 0;
    std::wstring key = LowerCase(found.name);
    if (!isFolder && !filter.Matches(key)) continue;
    if (isFolder && ++submenus > MaxSubmenus) {
      Log(L"No menu left for: ", path, found.name);
      continue;
    }
    if (!m_writer.CanInsert()) {
      Log(L"No identifier left for: ", path, found.name, L" and what follows it");
      return true;
    }

    auto record = m_state.commands.NewRecord();
    record->m_lType = isFolder ? clsOrvaneData::TypeDynamicFolder : clsOrvaneData::TypeFile;
    record->Location(path + found.name);
    record->Caption(clsOrvaneDataTools::TrimCaption(found.name, maximum));
    record->m_szDFolder_Filter = folder.m_szDFolder_Filter;
    // Below every printable character, so that folders come after the files.
    if (isFolder) key.insert(key.begin(), L'\t');
    Command command = m_state.commands.Add(std::move(record));
    command.Id(m_state.ids.Take());
    command.IsFileName(true);
    listed.commands.push_back(std::move(command));
    listed.keys.Add(key);
  }
  return listed.keys.Count() > 0 || !patience.HasRunOut();
}

void DynamicFolders::AddEntry(const Command& command, MenuHandle menu) {
  const clsOrvaneData& record = *command.Record();
  MenuItem item;
  item.command = command;
  item.caption = record.Caption();
  item.picture = Picture::OwnIcon;
  if (!record.IsTypeDynamicFolder()) {
    m_writer.Insert({menu}, std::move(item));
    return;
  }
  m_writer.AddSubmenu(item);
  Log(L"Adding dfolder: ", command.Id(), L" - ", record.Caption());
  Log(L"              : ", record.Location());
  if (m_writer.InsertDynamicFolder({menu}, std::move(item)))
    m_writer.AppendPlaceholder(command.Submenu());
}

}  // namespace orvane
