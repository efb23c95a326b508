#pragma once

#include "shellext/RightClick.h"

namespace orvane::test {

/// A right-click with everything in it: every kind of item, lists, built-in commands, pictures, a
/// selection. What a sweep fails one call of.
class WholeClick : public RightClick {
 public:
  static constexpr const wchar_t* Note = L"C:\\Work\\Note.txt";
  static constexpr const wchar_t* ListFile = L"C:\\Work\\Selected.lst";

  WholeClick() {
    Set(L"ShellShowHistoryMRU", 2);
    Set(L"ShellShowQuickAccessMRU", 1);
    Set(L"ShellShowFlags", 255);
    Set(L"ShellShowIcons", 3);
    Set(L"ShellOwnerDraw", 1);
    Set(L"DebugEnableInMenu", 1);
    desktop.files.AddFile(Note, "note");
    desktop.files.AddFile(L"C:\\Work\\Sub\\Deep.exe", "deep");  // with an icon of its own
    desktop.files.AddFile(L"C:\\Program Files\\Orvane\\designer.exe", "");
    desktop.files.AddFolder(L"D:\\Target");
    AddOfEveryKind();
    Remember(L"HistoryMRU", {Item(Data::TypeFile, L"Note", Note)});
    Remember(L"QuickAccessMRU", {Item(Data::TypeFolder, L"Work", L"C:\\Work")});
  }

  void ClickOnNote() { Click(L"C:\\Work", {Note}); }
  void BeginOnNote() { Begin(L"C:\\Work", {Note}); }

  /// Opens and paints every submenu, asks for every entry's texts.
  void LookAround() {
    if (shellMenu != MenuHandle::None) Visit(shellMenu, 0);
    for (std::int32_t offset = -1; offset <= Offsets(); ++offset)
      for (const std::uint32_t flags : {0u, 1u, 2u, 4u, 5u, 6u})
        handler->IContextMenu_GetCommandString({.idCmd = offset, .uFlags = flags, .cchMax = 64});
  }

  /// One more than the offset of the last entry that the menu made when it was built.
  std::int32_t Offsets() const {
    return handler->State().emptyId - handler->State().ids.First() + 12;
  }

  std::int32_t Invoke(std::int32_t offset) {
    return handler
        ->IContextMenu_InvokeCommand({.window = {}, .byOffset = true, .offset = offset, .verb = {}})
        .result;
  }

 private:
  void AddOfEveryKind() {
    const std::int32_t popup = Add(Item(Data::TypePopupMenu, L"More"));
    Add(Item(Data::TypeFolder, L"Work", L"C:\\Work"), popup);
    Add(Item(Data::TypeFolder, L"Documents", L"5", Data::OptionsCSIDL));
    Add(Item(Data::TypeFile, L"Note", Note), popup);
    Add(Item(Data::TypeSeparator, {}));
    Add(Item(Data::TypeDynamicFolder, L"Browse", L"C:\\Work"));
    Data action = Item(Data::TypeCustomAction, L"Type");
    action.m_szAction_Actions = L"hello";
    Add(action);
    Data task = Item(Data::TypeSelectionTask, L"Task", L"C:\\Work");
    task.m_szSelection_Command = L"C:\\Work\\tool.exe";
    task.m_szSelection_Parms = L"[orv_files]";
    task.m_szSelection_File = ListFile;
    task.m_lSelection_Options = Data::SelectionOptions_ShowAlways | Data::SelectionOptions_Recurse;
    Add(task);
    Data target = Item(Data::TypeCopyToX, L"To D", L"D:\\Target");
    Add(target);
  }

  void Paint(MenuHandle menu) {
    Gdi& gdi = desktop.gdi;
    const UniqueScreen screen(gdi, gdi.OpenScreen());
    const UniqueContext context(gdi, gdi.CreateContext());
    const UniqueBitmap bitmap(gdi, gdi.CreateCompatible(screen.get(), {60, 20}));
    const Selected selected(gdi, context.get(), bitmap.get());
    const std::vector<MenuEntry> entries = desktop.menus.Entries(menu);
    for (const MenuEntry& entry : entries) {
      const auto id = static_cast<std::int32_t>(entry.id);
      handler->Menu().Measure(id);
      const std::uint32_t state = id % 2 == 0 ? DrawItem::Selected : 0;
      handler->Menu().Draw({id, state, context.get(), {0, 0, 60, 20}});
    }
  }

  void Visit(MenuHandle menu, int depth) {
    handler->Menu().Open(menu);
    Paint(menu);
    if (depth == 8) return;
    const std::vector<MenuEntry> entries = desktop.menus.Entries(menu);
    for (const MenuEntry& entry : entries)
      if (entry.submenu != MenuHandle::None) Visit(entry.submenu, depth + 1);
  }
};

}  // namespace orvane::test
