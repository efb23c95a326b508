#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "memory/Desktop.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane::tool {

/// What a preview is asked to show; texts as they stand on the command line (UTF-8).
struct PreviewOptions {
  std::string config;
  std::string registry;
  std::string driveC;
  std::vector<std::string> drives;  // "D=directory"
  std::string actions;
  std::string folder;
  std::vector<std::string> select;
  std::vector<std::string> windows;  // CLASS:CAPTION:EXE, each the next one's child
  std::vector<std::string> answers;
  std::vector<std::string> open;  // "Caption/Caption", without regard to "&"
  std::string invoke;
  std::optional<std::string> verb;
  bool ctrl = false;
  bool shift = false;
  std::int32_t idFirst = 1;
  std::int32_t idLast = 32767;
};

/// One right-click on a desktop in memory, by the real core.
class PreviewSession {
 public:
  /// Sets the desktop up. std::runtime_error for a file or text that is not what it should be.
  explicit PreviewSession(const PreviewOptions& options);

  /// Creates the handler, builds the menu and opens submenus; the answer of QueryContextMenu.
  std::int32_t BuildMenu();

  /// Chooses the entry or the verb that the options name, and ends the right-click. Call it once,
  /// and last.
  void Invoke();
  bool Invokes() const { return !m_options.invoke.empty() || m_options.verb; }

  /// The entry's text for the status bar; empty without one.
  std::wstring HelpText(const MenuEntry& entry) const;

  memory::Desktop desktop;
  MenuHandle menu = MenuHandle::None;

 private:
  void Mount(const std::wstring& drive, const std::string& directory);
  void MountDrives();
  void AddWindows();
  void AddWindow(std::wstring className, std::wstring caption, std::wstring executable);
  void OpenSubmenu(const std::string& path);
  const MenuEntry& Find(const std::string& path) const;

  const PreviewOptions& m_options;
  WindowHandle m_window = WindowHandle::None;
  std::optional<ModuleGlobals> m_globals;
  std::unique_ptr<ContextMenuHandler> m_handler;
};

}  // namespace orvane::tool
