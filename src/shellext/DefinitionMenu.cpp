#include "shellext/DefinitionMenu.h"

#include <utility>

#include "platform/FileSystem.h"
#include "support/ProductName.h"
#include "support/Trace.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

/// How an item with a menu entry is dressed and logged.
struct ItemKind {
  std::int32_t type;
  Picture picture;
  bool popup;
  std::wstring_view log;
  std::wstring_view logLocation;  // empty: the location is not logged
};

constexpr ItemKind Kinds[] = {
    {Data::TypeFile, Picture::OwnIcon, false, L"Adding file: ", L"           : "},
    {Data::TypeFolder, Picture::OwnIcon, false, L"Adding folder: ", L"             : "},
    {Data::TypePopupMenu, Picture::None, true, L"Adding popup: ", L""},
    {Data::TypeDynamicFolder, Picture::OwnIcon, true, L"Adding dfolder: ", L"              : "},
    {Data::TypeSelectionTask, Picture::Task, false, L"Adding sel task: ", L"               : "},
    {Data::TypeCustomAction, Picture::Action, false, L"Adding CustomAction: ",
     L"                   : "},
    {Data::TypeCopyToX, Picture::OwnIcon, false, L"Adding copytox: ", L""},
};

const ItemKind* FindKind(std::int32_t type) {
  for (const ItemKind& kind : Kinds)
    if (kind.type == type) return &kind;
  return nullptr;
}

}  // namespace

bool DefinitionMenu::Read() {
  auto bytes = m_globals.platform.files.Read(m_globals.options.m_szShellConfigFile,
                                             FileReader::MaxSize, m_state.patience);
  if (!bytes || bytes->empty()) return true;
  DefinitionFile file(std::move(*bytes), m_globals.codePage, &m_state.commands.Memory());
  return ReadFile(file);
}

bool DefinitionMenu::ReadFile(DefinitionFile& file) {
  clsOrvaneDataTools& tools = m_globals.tools;
  clsFileHeader header;
  try {
    const std::int32_t version = tools.File_ReadVersion(file);
    if (version < tools.MinVersion() || version > tools.MaxVersion())
      return Refuse(L"Invalid file version!", MessageBoxes::Icon::Exclamation);
    if (!tools.File_ReadHeader(file, header))
      return Refuse(L"File is corrupt!", MessageBoxes::Icon::Exclamation);
  } catch (const CorruptFile&) {
    return Refuse(L"File is corrupt!", MessageBoxes::Icon::Exclamation);
  }
  try {
    return ReadItems(file, header.ItemCount);
  } catch (const CorruptFile&) {
    return Refuse(L"File is corrupt!", MessageBoxes::Icon::Stop);
  }
}

bool DefinitionMenu::ReadItems(DefinitionFile& file, std::int32_t count) {
  for (std::int32_t i = 1; i <= count; ++i) {
    auto record = m_state.commands.NewRecord();
    const Command command = m_state.commands.Add(record);
    Log(L"Index=", command.Index());
    std::int32_t parentIndex = 0;
    if (!m_globals.tools.File_ReadItemHeader(file, parentIndex, *record))
      return Refuse(L"File is corrupt!", MessageBoxes::Icon::Stop);
    Log(L"lParentIndex=", parentIndex);
    if (parentIndex < 0 || parentIndex > command.Index()) {
      Log(L"Parent not found: ", parentIndex);
      return false;
    }
    m_globals.tools.ReadData(file, *record);
    if (!AddItem(command, ParentMenu(parentIndex))) return true;
  }
  AddPlaceholders();
  return true;
}

/// None for an item that holds no entries: what claims to stand below it appears nowhere. What a
/// dynamic folder holds is the disk's affair.
MenuHandle DefinitionMenu::ParentMenu(std::int32_t parentIndex) const {
  if (parentIndex == 0) return m_state.rootMenu;
  const Command parent = m_state.commands.At(parentIndex);
  return parent.Record()->IsTypeDynamicFolder() ? MenuHandle::None : parent.Submenu();
}

bool DefinitionMenu::IsShown(const clsOrvaneData& record) const {
  if (!record.IsTypeSelectionTask()) return true;
  const std::int32_t selected = m_state.selection.count;
  return (record.SelectionOptions_IsShowAlways() && selected >= 1) ||
         (record.SelectionOptions_IsShowSingle() && selected == 1) ||
         (record.SelectionOptions_IsShowMultiple() && selected >= 2);
}

/// False when the shell's identifiers are used up.
bool DefinitionMenu::AddItem(Command command, MenuHandle menu) {
  const clsOrvaneData& record = *command.Record();
  Log(L"m_lType=", record.m_lType, L"  hCurrentMenu=", Hex(menu));
  const MenuWriter::Target target{menu};
  if (record.IsTypeRoot()) {
    m_globals.rootCaption = m_writer.Caption(record);
    Log(L"Root Caption=", m_globals.rootCaption);
    command.Submenu(m_state.rootMenu);
    return true;
  }
  if (record.IsTypeSeparator()) {
    Log(L"Adding separator");
    m_writer.InsertSeparator(target);
    return true;
  }
  const ItemKind* kind = FindKind(record.m_lType);
  if (!kind || !IsShown(record)) return true;
  if (!m_writer.CanInsert()) return false;

  MenuItem item;
  item.command = command;
  item.caption = m_writer.Caption(record);
  item.picture = kind->picture;
  if (record.IsTypeFolder()) m_writer.DressFolder(record, item);
  if (kind->popup) m_writer.AddSubmenu(item);
  if (record.IsTypePopupMenu())
    Log(kind->log, Hex(item.submenu.get()), L" - ", item.caption);
  else
    Log(kind->log, m_state.ids.Next(), L" - ", item.caption);
  if (!kind->logLocation.empty()) Log(kind->logLocation, record.Location());
  if (record.IsTypeDynamicFolder())
    m_writer.InsertDynamicFolder(target, std::move(item));
  else
    m_writer.Insert(target, std::move(item));
  return true;
}

void DefinitionMenu::AddPlaceholders() {
  if (!m_writer.CanInsert()) return;
  auto record = m_state.commands.NewRecord();
  record->m_lType = clsOrvaneData::TypeDynamicFolderEmpty;
  m_state.emptyId = m_state.ids.Take();
  m_state.commands.Add(std::move(record)).Id(m_state.emptyId);
  m_state.dynamicMenus.ForEach([&](MenuHandle submenu) { m_writer.AppendPlaceholder(submenu); });
}

bool DefinitionMenu::Refuse(const wchar_t* message, MessageBoxes::Icon icon) const {
  m_globals.platform.boxes.Show(message, g_szAppTitle, icon);
  return false;
}

}  // namespace orvane
