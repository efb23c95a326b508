#pragma once

#include <cstdint>
#include <string>

#include "commands/CommandContext.h"
#include "commands/Opener.h"

namespace orvane {

/// Shows the folder of a folder item: in the window that asked for the menu, in a new one, or as
/// the start of a dialog that picks a file to open.
class FolderCommand {
 public:
  /// `siteBrowser`: the IShellBrowser that the menu's site names, 0 without; it is asked before
  /// any window.
  FolderCommand(const CommandContext& context, WindowHandle window, std::intptr_t siteBrowser = 0);

  void Run(const clsOrvaneData& item, bool bCtrlPressed, bool bShiftPressed);

 private:
  /// Sets folder and list; false, after telling the user, for a special folder that is none here.
  bool Find(const clsOrvaneData& item);
  void ShowInWindow();
  /// Lets a custom action made for the window do it; false when there is none, or no path to type.
  bool PlayWindowAction();
  std::intptr_t BrowserOf(WindowHandle window);
  bool BrowseIn(std::intptr_t shellBrowser);
  void ShowInNewWindow(const clsOrvaneData& item);
  void BrowseAndOpen();

  const CommandContext& m_context;
  const Platform& m_platform;
  Opener m_opener;
  WindowHandle m_window;
  std::intptr_t m_siteBrowser;
  std::wstring m_folder;  // empty for a virtual folder
  ItemIdList m_pidl;
};

}  // namespace orvane
