#include "shellext/ContextMenuHandler.h"

#include <limits>
#include <utility>

#include "commands/HostWindow.h"
#include "customactions/clsCustomActions.h"
#include "menudata/SettingsTable.h"
#include "platform/MessageBoxes.h"
#include "platform/SystemInfo.h"
#include "shellext/BuiltInMenu.h"
#include "shellext/CaptionSearch.h"
#include "shellext/DefinitionMenu.h"
#include "support/ProductName.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t CopyToCount = 7;

constexpr std::int16_t ReadTimer = 1;

std::wstring DescribeMenu(MenuHandle hMenu, std::int32_t indexMenu, std::int32_t idCmdFirst,
                          std::int32_t idCmdLast, std::uint32_t uFlags) {
  return L"hMenu=" + Hex(hMenu) + L"  indexMenu=" + std::to_wstring(indexMenu) + L"  idCmdFirst=" +
         std::to_wstring(idCmdFirst) + L"  idCmdLast=" + std::to_wstring(idCmdLast) + L"  uFlags=" +
         std::to_wstring(uFlags);
}

/// What could not be saved when it was added. A list without changes is left alone: another window
/// may have stored more since.
void SaveUnsaved(clsMRU& list) {
  if (list.IsUnsaved()) list.Save();
}

}  // namespace

ContextMenuHandler::ContextMenuHandler(ModuleGlobals& globals)
    : m_globals(globals),
      m_state(globals.platform.gdi, globals.platform.icons, globals.platform.files),
      m_painter(globals.platform.gdi),
      m_drawing(globals.options, globals.platform.menus, m_state.pictures, m_painter),
      m_writer(globals, m_state, m_drawing),
      m_dynamic(globals, m_state, m_writer),
      m_openMenu(globals, m_state, m_painter, m_dynamic) {
  UserControl_Initialize();
}

ContextMenuHandler::~ContextMenuHandler() {
  UserControl_Terminate();
}

void ContextMenuHandler::UserControl_Initialize() {
  // The settings come first: they switch the trace on that logs the rest.
  const Platform& platform = m_globals.platform;
  m_globals.options.Reg_Load({platform.registry, platform.files, platform.boxes, platform.system,
                              platform.clock, platform.locale},
                             SettingsKey);
  TraceScope scope(L"UserControl_Initialize");
  const clsOptions& options = m_globals.options;
  try {
    Log(L"App.hInstance=", Hex(m_globals.platform.system.Module()));
    m_globals.quickAccess.Path(QuickAccessKey);
    m_globals.history.Path(HistoryKey);
    m_globals.copyTo.Path(CopyToKey);
    SaveUnsaved(m_globals.history);
    SaveUnsaved(m_globals.quickAccess);
    m_globals.history.Load(options.m_lShellMaxHistoryMRU);
    m_globals.quickAccess.Load(options.m_lShellMaxQuickAccessMRU);
    m_globals.copyTo.Load(CopyToCount);
  } catch (...) {
    scope.Caught();
  }
  if (++m_globals.handlers < 2 && !options.m_szShellCustomActionsFile.empty())
    CountWindowActions();
  else
    Log(L"g_lReferenceCount=", m_globals.handlers);
}

// A spoilt actions file costs the actions, not the menu.
void ContextMenuHandler::CountWindowActions() noexcept {
  try {
    clsCustomActions actions(m_globals.actionServices);
    m_state.windowActions =
        actions.Count(clsCustomActions::TypeWindow, m_globals.options.m_szShellCustomActionsFile,
                      m_state.patience);
  } catch (...) {
    const PendingError error = CaughtError();
    Log(L"Error: ", error.number, L" - ", error.description);
  }
  Log(L"m_lNumWindowActions=", m_state.windowActions);
}

void ContextMenuHandler::UserControl_Terminate() {
  TraceScope scope(L"UserControl_Terminate");
  try {
    Log(L"Killing bitmaps");
    Log(L"g_lReferenceCount=", m_globals.handlers);
    if (--m_globals.handlers > 0) return;
    DestroyDynamicMenus();
    SaveUnsaved(m_globals.quickAccess);
    SaveUnsaved(m_globals.history);
  } catch (...) {
    scope.Caught();
  }
}

// As a rule the shell has destroyed its menu by now, and these with it.
void ContextMenuHandler::DestroyDynamicMenus() {
  Menus& menus = m_globals.platform.menus;
  m_state.dynamicMenus.ForEach([&](MenuHandle submenu) {
    if (menus.Exists(submenu)) menus.Destroy(submenu);
  });
}

std::int32_t ContextMenuHandler::IShellExtInit_Initialize(ItemIdList pidlFolder,
                                                          std::shared_ptr<DataObject> pSelectionObj,
                                                          std::int32_t hKeyProgID) noexcept {
  TraceScope scope(L"IShellExtInit_Initialize");
  try {
    Log(L"pidlFolder=", Hex(pidlFolder.bytes.data()), L"  hKeyProgID=", hKeyProgID);
    const std::int32_t result =
        m_state.selection.Capture(m_globals.platform.shell, m_globals.platform.files,
                                  m_state.patience, pidlFolder, std::move(pSelectionObj));
    if (result != 0) return result;
    Log(L"CurrentFolder=", m_state.selection.folder);
    Log(L"CurrentFile=", m_state.selection.file);
    return 0;
  } catch (...) {
    scope.Caught();
    return 0;
  }
}

std::int32_t ContextMenuHandler::IContextMenu_QueryContextMenuEx(MenuHandle hMenu,
                                                                 std::int32_t indexMenu,
                                                                 std::int32_t idCmdFirst,
                                                                 std::int32_t idCmdLast,
                                                                 std::uint32_t uFlags) noexcept {
  TraceScope scope(L"IContextMenu_QueryContextMenuEx");
  std::int32_t result = 0;
  try {
    const bool showInfo = m_globals.options.m_bDebugShowWindowsMenuInfo;
    if (showInfo || ActiveDebugTrace()) {
      const std::wstring call = DescribeMenu(hMenu, indexMenu, idCmdFirst, idCmdLast, uFlags);
      if (showInfo) TellMenuInfo(call, std::int64_t{idCmdLast} - idCmdFirst);
      Log(call);
    }
    switch (Participation(hMenu, indexMenu, idCmdFirst, idCmdLast)) {
      case Part::None:
        break;
      case Part::Count:
        result = m_state.ids.Count();
        break;
      case Part::Build:
        BuildMenu(hMenu, indexMenu, idCmdFirst, idCmdLast);
        result = m_state.ids.Count();
    }
  } catch (...) {
    scope.Caught();
    result = m_state.ids.Count();  // what was inserted must stay ours
  }
  Log(L"RV=", result);
  m_isQueried = true;
  m_count = result;
  return result;
}

/// Whether this handler adds to the menu, or only answers.
ContextMenuHandler::Part ContextMenuHandler::Participation(MenuHandle hMenu, std::int32_t indexMenu,
                                                           std::int32_t idCmdFirst,
                                                           std::int32_t idCmdLast) {
  const clsOptions& options = m_globals.options;
  Log(L"m_bShellEnable=", options.m_bShellEnable);
  if (!options.m_bShellEnable) return Part::None;
  if (std::int64_t{idCmdLast} - idCmdFirst < 1) {
    Tell(L"Windows reports that you cannot have any more menu items! (" +
             std::to_wstring(idCmdFirst) + L" : " + std::to_wstring(idCmdLast) + L")",
         MessageBoxes::Icon::Exclamation);
    return Part::None;
  }
  if (!options.m_bShellShowInIE && IsIE(m_globals.platform.windows.Active())) return Part::Count;
  if (m_globals.handlers > 1 &&
      IsCaptionInMenu(m_globals.platform.menus, m_globals.rootCaption, hMenu, indexMenu)) {
    Log(L"In menu alredy!");
    return Part::None;
  }
  return Part::Build;
}

void ContextMenuHandler::BuildMenu(MenuHandle hMenu, std::int32_t indexMenu,
                                   std::int32_t idCmdFirst, std::int32_t idCmdLast) {
  const clsOptions& options = m_globals.options;
  Log(L"m_bShellIgnoreBoundsCheck=", options.m_bShellIgnoreBoundsCheck);
  if (options.m_bShellIgnoreBoundsCheck) {
    idCmdLast = std::numeric_limits<std::int32_t>::max();
    Log(L"idCmdLast=", idCmdLast);
  }
  m_state.ids = CommandIds(idCmdFirst, idCmdLast);
  m_state.commands.Clear();
  // The submenus of an earlier menu belong to that menu; only this one's are filled from now on.
  m_state.dynamicMenus.Clear();
  m_state.noAnswerId = 0;
  m_state.shellMenu = hMenu;
  m_state.menuPosition = indexMenu;
  UniqueMenu root = m_writer.CreatePopup();
  m_state.rootMenu = root.get();
  Log(L"m_hRootMenu=", Hex(root.get()));
  m_drawing.ShellMenu(hMenu);

  const MenuWriter::Target shellMenu{hMenu, &m_state.menuPosition};
  m_writer.InsertSeparator(shellMenu);
  if (options.m_bDebugEnableInMenu) InsertDebugSwitch();
  const std::int32_t rootPosition = m_state.menuPosition;
  if (!CreateMenu()) return;
  InsertRoot(std::move(root), rootPosition);
  if (m_state.commands.Count() == 0) {
    Log(L"Nothing in the data!");
    return;
  }
  Log(L"Root=", m_state.commands.At(1).Record()->Caption());
  m_writer.InsertSeparator(shellMenu);
  if (m_state.dynamicMenus.Count() > 0) ReserveDynamicIds();
}

void ContextMenuHandler::InsertDebugSwitch() {
  MenuEntry entry;
  entry.caption = m_globals.options.m_bDebugEnable ? L"Disable debugging" : L"Enable debugging";
  entry.id = static_cast<std::uint32_t>(m_state.ids.Take());
  m_globals.platform.menus.Insert(m_state.shellMenu, m_state.menuPosition++, entry);
}

void ContextMenuHandler::InsertRoot(UniqueMenu root, std::int32_t position) {
  if (Trim(m_globals.rootCaption).empty()) m_globals.rootCaption = ProductName;
  MenuEntry entry;
  entry.caption = m_globals.rootCaption;
  entry.submenu = root.get();
  if (IsShown(Picture::Mark, m_globals.options.m_lShellShowIcons))
    entry.bitmap = PictureStore::CheckMark(m_state.pictures.Find(Picture::Mark));
  if (!m_globals.platform.menus.Insert(m_state.shellMenu, position, entry)) return;
  root.release();
  ++m_state.menuPosition;
}

void ContextMenuHandler::ReserveDynamicIds() {
  Log(L"Dynamic menu's created ... allocating all available id's");
  Log(L"Before m_lMenuCmdId=", m_state.ids.Next());
  m_state.ids.ReserveDynamic(m_globals.options.m_bShellIgnoreBoundsCheck);
  Log(L"After m_lMenuCmdId=", m_state.ids.Next());
}

bool ContextMenuHandler::CreateMenu() {
  TraceScope scope(L"CreateMenu");
  bool result = false;
  try {
    if (m_globals.options.m_bTimingEnable) m_globals.timing.TimerStart(ReadTimer);
    Log(L"Opening: ", m_globals.options.m_szShellConfigFile);
    Log(L"StartCmdIndex=", m_state.ids.Next());
    result = DefinitionMenu(m_globals, m_state, m_writer).Read();
    if (result) BuiltInMenu(m_globals, m_state, m_writer).Add();
  } catch (...) {
    scope.Caught();
    const PendingError& error = m_globals.threadState.pending;
    Log(L"Error: ", error.number, L" - ", error.description);
    result = false;
  }
  Log(L"Read=", m_state.commands.Count(), L"  Num Commands=",
      m_state.ids.Next() - m_state.ids.First());
  Log(L"RV=", result);
  StopReadTimer();
  return result;
}

void ContextMenuHandler::StopReadTimer() noexcept {
  if (!m_globals.options.m_bTimingEnable) return;
  try {
    m_globals.timing.TimerStop(L"ReadConfig", ReadTimer);
  } catch (...) {
    // The tick counter wrapped around in between; there is no time to log.
  }
}

void ContextMenuHandler::TellMenuInfo(const std::wstring& call, std::int64_t commands) {
  Tell(call + L"\r\n\r\nMaximum Number of Commands = " + std::to_wstring(commands),
       MessageBoxes::Icon::Information);
}

void ContextMenuHandler::Tell(const std::wstring& text, MessageBoxes::Icon icon) {
  m_globals.platform.boxes.Show(text, g_szAppTitle, icon);
}

CommandContext ContextMenuHandler::Context() const {
  return {.platform = m_globals.platform,
          .codePage = m_globals.codePage,
          .actions = m_globals.actionServices,
          .options = m_globals.options,
          .history = m_globals.history,
          .quickAccess = m_globals.quickAccess,
          .copyTo = m_globals.copyTo,
          .tools = m_globals.tools,
          .commands = m_state.commands,
          .firstId = m_state.ids.First(),
          .windowActions = m_state.windowActions,
          .selection = m_state.selection};
}

InvokeOutcome ContextMenuHandler::IContextMenu_InvokeCommand(const InvokeRequest& request) {
  return orvane::IContextMenu_InvokeCommand(Context(), request);
}

CommandText ContextMenuHandler::IContextMenu_GetCommandString(const TextRequest& request) const {
  return orvane::IContextMenu_GetCommandString(Context(), request);
}

WindowHandle ContextMenuHandler::GetRootExplorerWindow(WindowHandle hWnd) {
  return orvane::GetRootExplorerWindow(m_globals.platform.windows, hWnd);
}

WindowHandle ContextMenuHandler::GetRootOfficeWindow(WindowHandle hWnd) {
  return orvane::GetRootOfficeWindow(m_globals.platform.windows, hWnd);
}

bool ContextMenuHandler::IsIE(WindowHandle hWnd) {
  return orvane::IsIE(m_globals.platform.windows, hWnd);
}

bool ContextMenuHandler::CanInsertMenuCommand(bool, bool) const {
  return m_writer.CanInsert();
}

}  // namespace orvane
