#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "memory/MenuText.h"
#include "menudata/Definition.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane::test {

using Data = clsOrvaneData;

inline constexpr const wchar_t* SettingsKey = L"Software\\Tarnwick\\Orvane\\";
inline constexpr const wchar_t* ConfigFile = L"C:\\Program Files\\Orvane\\Default.cfg";
inline constexpr const wchar_t* LogFile = L"C:\\Program Files\\Orvane\\Debug.dbg";

inline Data Item(std::int32_t type, const std::wstring& caption, const std::wstring& location = {},
                 std::int32_t options = 0) {
  Data item;
  item.m_lType = type;
  item.m_lOptions = options;
  item.Location(location);
  item.Caption(caption);
  return item;
}

/// A right-click on the memory desktop: set the scene, click, look at the menu. The end of its life
/// is the end of the menu, and checks what must hold of every menu.
class RightClick {
 public:
  RightClick() {
    for (const wchar_t* name :
         {L"ShellShowHistoryMRU", L"ShellShowQuickAccessMRU", L"ShellShowFlags", L"ShellOwnerDraw"})
      Set(name, 0);
    Add(Item(Data::TypeRoot, {}), 0);
    definition.items[0].data.m_szRoot_Caption = L"Orvane";
  }

  ~RightClick() {
    End();
    EXPECT_EQ(desktop.menus.LiveCount(), 0u);
    EXPECT_EQ(desktop.gdi.Live(), 0u);
    EXPECT_EQ(desktop.gdi.Mistakes(), std::vector<std::string>());
    EXPECT_EQ(desktop.icons.Live(), 0u);
    EXPECT_FALSE(desktop.icons.wronglyFreed);
  }

  void Set(const std::wstring& name, std::uint32_t number) {
    desktop.registry.SetNumber(Hive::CurrentUser, SettingsKey, name, number);
  }

  /// Adds an item to the menu definition; answers its place, for its children.
  std::int32_t Add(const Data& item, std::int32_t parent = 1) {
    definition.items.push_back({parent, item});
    return definition.header.ItemCount = static_cast<std::int32_t>(definition.items.size());
  }

  /// Has these bytes as definition file.
  void Define(std::string_view bytes) { desktop.files.AddFile(ConfigFile, std::string(bytes)); }

  /// Stores entries in a recently-used list ("HistoryMRU", "QuickAccessMRU"), newest first.
  void Remember(const std::wstring& list, const std::vector<Data>& items) {
    memory::Desktop scribe;
    ModuleGlobals tools(scribe.Bundle());
    const std::wstring key = std::wstring(SettingsKey) + L"ContextMenu\\" + list;
    std::uint32_t count = 0;
    for (const Data& item : items)
      desktop.registry.SetText(Hive::CurrentUser, key, L"Mru" + std::to_wstring(++count),
                               tools.tools.CreateHistoryMRU(item));
    desktop.registry.SetNumber(Hive::CurrentUser, key, L"MruFileCount", count);
  }

  /// The whole right-click; the answer of QueryContextMenu.
  std::int32_t Click(const std::wstring& folder = {},
                     std::initializer_list<std::wstring_view> selection = {}) {
    Begin(folder, selection);
    return Query();
  }

  /// The right-click up to the handler with its selection.
  void Begin(const std::wstring& folder, std::initializer_list<std::wstring_view> selection) {
    if (definition.items.size() > 1) WriteDefinitionFile();
    if (!globals) globals.emplace(desktop.Bundle());
    handler = std::make_unique<ContextMenuHandler>(*globals);
    std::shared_ptr<DataObject> data;
    if (selection.size() > 0) data = std::make_shared<memory::DataObject>(selection);
    const ItemIdList pidl = folder.empty() ? ItemIdList() : memory::Shell::ItemOf(folder);
    EXPECT_EQ(handler->IShellExtInit_Initialize(pidl, data, 0), 0);
  }

  std::int32_t Query() {
    if (shellMenu == MenuHandle::None) shellMenu = desktop.menus.CreatePopup();
    return handler->IContextMenu_QueryContextMenuEx(shellMenu, 0, idFirst, idLast, 0);
  }

  std::wstring Menu() { return memory::MenuText(desktop.menus, shellMenu); }
  bool Shows(std::wstring_view text) { return Menu().find(text) != std::wstring::npos; }

  /// The submenu behind the first entry of that caption, anywhere in the menu.
  MenuHandle Submenu(const std::wstring& caption) { return Find(shellMenu, caption); }
  const std::vector<MenuEntry>& Entries(const std::wstring& caption = L"Orvane") {
    return desktop.menus.Entries(Submenu(caption));
  }

  std::wstring Open(const std::wstring& caption) {
    const MenuHandle submenu = Submenu(caption);
    handler->Menu().Open(submenu);
    return memory::MenuText(desktop.menus, submenu);
  }

  /// Texts of the message boxes so far, each with its icon in brackets.
  std::vector<std::wstring> Boxes() const {
    std::vector<std::wstring> boxes;
    for (const memory::Effect& effect : desktop.effects.All()) {
      if (effect.call != "MessageBox") continue;
      std::wstring& box = boxes.emplace_back();
      for (const auto& [name, value] : effect.fields) {
        if (name == "text") box += std::get<std::wstring>(value);
        if (name == "icon") box += L" [" + std::get<std::wstring>(value) + L"]";
      }
    }
    return boxes;
  }

  /// Checks the menu's identifiers and ends it as the shell does.
  void End() {
    std::set<std::uint32_t> seen;
    if (handler && shellMenu != MenuHandle::None) Verify(shellMenu, seen);
    if (desktop.menus.Exists(shellMenu)) desktop.menus.Destroy(shellMenu);
    shellMenu = MenuHandle::None;
    handler.reset();
    globals.reset();
  }

  memory::Desktop desktop;
  Definition definition;
  std::optional<ModuleGlobals> globals;
  std::unique_ptr<ContextMenuHandler> handler;
  MenuHandle shellMenu = MenuHandle::None;
  std::int32_t idFirst = 1;
  std::int32_t idLast = 32767;

 private:
  void WriteDefinitionFile() {
    memory::Desktop scribe;
    const CodePage codePage(scribe.system.AnsiCharacters());
    Scrambler scrambler;
    const std::vector<std::byte> bytes = WriteDefinition(definition, codePage, scrambler);
    Define({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }

  MenuHandle Find(MenuHandle menu, const std::wstring& caption) {
    for (const MenuEntry& entry : desktop.menus.Entries(menu)) {
      if (entry.submenu == MenuHandle::None) continue;
      if (entry.caption == caption) return entry.submenu;
      if (const MenuHandle found = Find(entry.submenu, caption); found != MenuHandle::None)
        return found;
    }
    return MenuHandle::None;
  }

  /// Identifiers are in range, unique and in the command table. The root entry has none, the switch
  /// of the debug log has no node, and the placeholders share theirs.
  void Verify(MenuHandle menu, std::set<std::uint32_t>& seen) {
    const HandlerState& state = handler->State();
    EXPECT_FALSE(state.commands.Find(Command::NoId)) << "what stands in no menu";
    for (const MenuEntry& entry : desktop.menus.Entries(menu)) {
      if (entry.submenu != MenuHandle::None) Verify(entry.submenu, seen);
      const auto id = static_cast<std::int32_t>(entry.id);
      if (entry.separator || entry.submenu == state.rootMenu) continue;
      if (entry.caption.ends_with(L"able debugging")) continue;
      EXPECT_GE(id, state.ids.First());
      EXPECT_LE(id, state.ids.Last());
      EXPECT_TRUE(state.commands.Find(id)) << id;
      EXPECT_TRUE(handler->IsLent(id - state.ids.First()) ||
                  globals->options.m_bShellIgnoreBoundsCheck)
          << id;
      EXPECT_TRUE(seen.insert(entry.id).second || id == state.emptyId) << id;
    }
  }
};

}  // namespace orvane::test
