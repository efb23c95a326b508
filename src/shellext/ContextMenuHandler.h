#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "commands/CommandDispatch.h"
#include "commands/CommandText.h"
#include "graphics/OwnerDrawMenu.h"
#include "platform/MessageBoxes.h"
#include "shellext/DynamicFolders.h"
#include "shellext/HandlerState.h"
#include "shellext/MenuWriter.h"
#include "shellext/ModuleGlobals.h"
#include "shellext/OpenMenu.h"

namespace orvane {

/// What the shell talks to, without COM: made for one right-click, handed the folder and the
/// selection, asked for its menu entries, told of the menu's messages, asked for help texts and
/// told to run the chosen command. One thread; nothing thrown comes out of a method.
class ContextMenuHandler {
 public:
  /// Loads settings and lists anew. `globals` are the calling thread's and outlive the handler.
  explicit ContextMenuHandler(ModuleGlobals& globals);
  ~ContextMenuHandler();
  ContextMenuHandler(const ContextMenuHandler&) = delete;
  ContextMenuHandler& operator=(const ContextMenuHandler&) = delete;

  /// 0, or the HRESULT with which the data object refused its files.
  std::int32_t IShellExtInit_Initialize(ItemIdList pidlFolder,
                                        std::shared_ptr<DataObject> pSelectionObj,
                                        std::int32_t hKeyProgID) noexcept;

  /// Builds the menu and answers the success code with the count of identifiers.
  std::int32_t IContextMenu_QueryContextMenuEx(MenuHandle hMenu, std::int32_t indexMenu,
                                               std::int32_t idCmdFirst, std::int32_t idCmdLast,
                                               std::uint32_t uFlags) noexcept;

  /// Measures, paints and fills the menu while it is open.
  OpenMenu& Menu() { return m_openMenu; }

  InvokeOutcome IContextMenu_InvokeCommand(const InvokeRequest& request);

  /// An entry's help text or verb.
  CommandText IContextMenu_GetCommandString(const TextRequest& request) const;

  bool CreateMenu();
  WindowHandle GetRootExplorerWindow(WindowHandle hWnd);
  WindowHandle GetRootOfficeWindow(WindowHandle hWnd);
  bool IsIE(WindowHandle hWnd);
  bool CanInsertMenuCommand(bool bShowError, bool bInternal) const;
  std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId) {
    return m_openMenu.OwnerDrawMenu_GetCaption(lId);
  }
  BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId) {
    return m_openMenu.OwnerDrawMenu_HasBitmap(lId);
  }

  /// Whether the offset lies within the count that QueryContextMenu answered last; none does before
  /// it was called.
  bool IsLent(std::int32_t offset) const { return offset >= 0 && offset < m_count; }
  bool IsQueried() const { return m_isQueried; }

  const HandlerState& State() const { return m_state; }

 private:
  enum class Part { None, Count, Build };  // in the menu: nothing, a count as it stands, entries

  void UserControl_Initialize();
  void UserControl_Terminate();
  void CountWindowActions() noexcept;
  void DestroyDynamicMenus();
  Part Participation(MenuHandle hMenu, std::int32_t indexMenu, std::int32_t idCmdFirst,
                     std::int32_t idCmdLast);
  void BuildMenu(MenuHandle hMenu, std::int32_t indexMenu, std::int32_t idCmdFirst,
                 std::int32_t idCmdLast);
  void InsertDebugSwitch();
  void InsertRoot(UniqueMenu root, std::int32_t position);
  void ReserveDynamicIds();
  void StopReadTimer() noexcept;
  void TellMenuInfo(const std::wstring& call, std::int64_t commands);
  void Tell(const std::wstring& text, MessageBoxes::Icon icon);
  CommandContext Context() const;

  ModuleGlobals& m_globals;
  HandlerState m_state;
  MenuPainter m_painter;
  OwnerDrawMenu m_drawing;
  MenuWriter m_writer;
  DynamicFolders m_dynamic;
  OpenMenu m_openMenu;
  std::int32_t m_count = 0;  // the last answer of QueryContextMenu
  bool m_isQueried = false;
};

}  // namespace orvane
