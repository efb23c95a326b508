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

// How long a menu may wait for a folder on a network that does not answer, in milliseconds. The
// user sees the menu hang for that long, once; afterwards the submenu says "(Empty)".
constexpr std::uint32_t NetworkPatience = 1000;

// Every folder shown is a menu of its own, and a process may have 10,000 menus, windows and the
// like in all (Windows: "User Objects"). Beyond this many the host would be left without.
constexpr std::int32_t MaxSubmenus = 4000;

}  // namespace

void DynamicFolders::Open(MenuHandle submenu) {
  m_state.ids.ResumeDynamic();
  Log(L"WM_INITMENUPOPUP - m_lMenuCmdId=", m_state.ids.Next());
  const auto node = m_state.m_colDynamicMenus.ItemViaKey(ToNumber(submenu));
  if (!node) return;
  if (node->m_lData == 0) {
    CreateDynamicMenu(*node);
    node->m_lData = 1;
  }
  m_state.ids.SuspendDynamic();
}

void DynamicFolders::CreateDynamicMenu(const clsCollection& node) {
  TraceScope scope(L"CreateDynamicMenu");
  try {
    Menus& menus = m_globals.platform.menus;
    const auto menu = ToHandle<MenuHandle>(node.m_lKey);
    const auto& item = static_cast<const clsCollection&>(*node.m_oData);
    clsCollection sorted;
    const auto& folder = static_cast<const clsOrvaneData&>(*item.m_oData);
    Log(L"hMenu=", Hex(menu), L"  szDir=", folder.Location());
    List(folder, sorted);

    Log(L"Sorting ", sorted.Count());
    const std::vector<std::int32_t> order = sorted.Sort_Bubble(L"m_szKey");
    for (std::size_t i = 1; i < order.size(); ++i)
      AddEntry(std::static_pointer_cast<clsCollection>(sorted.Item(order[i])->m_oData), menu);

    const std::int32_t count = menus.Count(menu);
    if (count > 1) {
      Log(L"MenuCount=", count);
      menus.Remove(menu, 0);
      Log(L"Killed empty entry");
    }
  } catch (...) {
    scope.Caught();
  }
}

/// Records for the kept entries, each with its identifier, and their sort keys.
void DynamicFolders::List(const clsOrvaneData& folder, clsCollection& sorted) {
  std::wstring path = folder.Location();
  if (!path.ends_with(L'\\')) path += L'\\';
  const auto listing = m_globals.platform.files.List(path, NetworkPatience);
  if (!listing) return;

  const FileFilter filter(folder.m_szDFolder_Filter);
  const std::int32_t maximum = m_globals.g_Options.m_lShellMaxMenuText;
  std::int32_t submenus = m_state.m_colDynamicMenus.Count();
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
      return;
    }

    auto record = std::make_shared<clsOrvaneData>();
    record->m_lType = isFolder ? clsOrvaneData::TypeDynamicFolder : clsOrvaneData::TypeFile;
    record->Location(path + found.name);
    record->Caption(clsOrvaneDataTools::TrimCaption(found.name, maximum));
    record->m_szDFolder_Filter = folder.m_szDFolder_Filter;
    // Below every printable character, so that folders come after the files.
    if (isFolder) key.insert(key.begin(), L'\t');
    auto node = m_writer.AddNode(std::move(record));
    node->m_lKey = m_state.ids.Take();
    sorted.Add(key, 0, std::move(node));
  }
}

void DynamicFolders::AddEntry(const clsCollection::Node& node, MenuHandle menu) {
  const auto& record = static_cast<const clsOrvaneData&>(*node->m_oData);
  MenuWriter::Item item;
  item.node = node;
  item.caption = record.Caption();
  item.bitmapKey = MenuWriter::OwnIcon;
  item.fileName = true;
  if (!record.IsTypeDynamicFolder()) {
    m_writer.Insert({menu}, std::move(item));
    return;
  }
  m_writer.AddSubmenu(item);
  Log(L"Adding dfolder: ", std::int32_t{node->m_lKey}, L" - ", record.Caption());
  Log(L"              : ", record.Location());
  if (m_writer.InsertDynamicFolder({menu}, std::move(item)))
    m_writer.AppendPlaceholder(ToHandle<MenuHandle>(node->m_lData));
}

}  // namespace orvane
