#include "commands/FolderCommand.h"

#include "commands/Browser.h"
#include "commands/HostWindow.h"
#include "commands/RecentItems.h"
#include "commands/Warning.h"
#include "customactions/clsProcess.h"
#include "menudata/ShellPaths.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t ShowDefault = 10;            // SW_SHOWDEFAULT
constexpr std::uint32_t NoNewFolderButton = 0x200;  // BIF_NONEWFOLDERBUTTON

}  // namespace

FolderCommand::FolderCommand(const CommandContext& context, WindowHandle window,
                             std::intptr_t siteBrowser)
    : m_context(context),
      m_platform(context.platform),
      m_opener(m_platform.launcher, m_platform.profiles, m_platform.shell),
      m_window(window),
      m_siteBrowser(siteBrowser) {}

void FolderCommand::Run(const clsOrvaneData& item, bool bCtrlPressed, bool bShiftPressed) {
  if (!Find(item)) return;
  Log(L"pidlAddress=", Hex(m_pidl.bytes.data()));
  Remember(m_context, m_context.history, item);
  if (item.OptionsIsBrowseAndOpen() || (bCtrlPressed && bShiftPressed))
    BrowseAndOpen();
  else if (item.OptionsIsExploreInNewWindow() || bCtrlPressed)
    ShowInNewWindow(item);
  else
    ShowInWindow();
}

bool FolderCommand::Find(const clsOrvaneData& item) {
  if (!item.OptionsIsCSIDL()) {
    m_folder = item.Location();
    Log(L"szFolder=", m_folder);
    m_pidl = GetPidlFromPath(m_platform.shell, m_window, m_folder);
    return true;
  }
  if (item.OptionsIsExploreInNewWindow()) return true;  // opened by its number
  const std::int32_t csidl = item.FolderCSIDL();
  m_pidl = m_platform.shell.SpecialFolder(m_window, csidl);
  if (!m_pidl) {
    Warn(m_platform.boxes, L"OS doesn't support the special folder: " + std::to_wstring(csidl));
    return false;
  }
  m_folder = PidlToPath(m_platform.shell, m_pidl);
  return true;
}

void FolderCommand::ShowInWindow() {
  if (!m_pidl) return Warn(m_platform.boxes, L"Path not found - " + m_folder);
  if (PlayWindowAction()) return;
  if (m_siteBrowser != 0 && BrowseIn(m_siteBrowser)) return;
  const std::intptr_t windowBrowser = BrowserOf(m_window);
  if (!BrowseIn(windowBrowser)) {
    const WindowHandle parent = GetRootExplorerWindow(m_platform.windows, m_window);
    Log(L"hWndParent=", Hex(parent));
    if (!BrowseIn(BrowserOf(parent))) m_opener.OpenFolderEx(m_pidl, m_window);
  }
  // To a window that gave no browser the number means something of its own.
  if (windowBrowser != 0) m_platform.launcher.BrowsingDone(m_window);
}

bool FolderCommand::PlayWindowAction() {
  if (m_context.windowActions == 0) return false;
  const std::wstring path = PidlToPath(m_platform.shell, m_pidl);
  if (path.empty()) return false;
  clsCustomActions action(m_context.actions);
  const WindowHandle window =
      action.MatchWindow(m_window, m_context.options.m_szShellCustomActionsFile);
  if (window == WindowHandle::None) return false;
  Log(L"hWnd=", Hex(window), L"  Action=", action.m_szDescription);
  ActivateWindowProcess(m_platform.processes, window);
  action.SendActions(path);
  return true;
}

std::intptr_t FolderCommand::BrowserOf(WindowHandle window) {
  const std::intptr_t shellBrowser = m_platform.launcher.ShellBrowser(window);
  Log(L"lAddress=", Hex(static_cast<std::int32_t>(shellBrowser)));
  return shellBrowser;
}

bool FolderCommand::BrowseIn(std::intptr_t shellBrowser) {
  const std::int32_t failure = m_platform.launcher.BrowseObject(shellBrowser, m_pidl);
  if (failure != 0) Log(L"Err=", failure, L" - The window does not show the folder");
  return failure == 0;
}

void FolderCommand::ShowInNewWindow(const clsOrvaneData& item) {
  Log(L"Firing new explorer");
  SetPendingError({});
  if (item.OptionsIsCSIDL()) {
    m_opener.OpenSpecialFolderInExplorer(m_window, item.FolderCSIDL());
  } else {
    m_opener.ShellExecuteChecked(
        {.verb = L"explore", .file = m_folder, .parameters = L"/e", .show = ShowDefault});
  }
  WarnOfPendingError(m_platform.boxes, m_folder);
}

void FolderCommand::BrowseAndOpen() {
  Browser browser(m_platform.dialogs, m_platform.shell, m_platform.boxes);
  const ItemIdList picked =
      browser.BrowseForFile(m_window, L"Select the file you wish to open",
                            PidlToPath(m_platform.shell, m_pidl), NoNewFolderButton);
  if (picked) m_opener.OpenFileEx(picked, m_window);
}

}  // namespace orvane
