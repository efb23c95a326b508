#pragma once

#include "platform/Platform.h"
#include "win32/Clipboard.h"
#include "win32/Clock.h"
#include "win32/Dialogs.h"
#include "win32/FileOperations.h"
#include "win32/FileSystem.h"
#include "win32/Gdi.h"
#include "win32/Keyboard.h"
#include "win32/Launcher.h"
#include "win32/Locale.h"
#include "win32/Menus.h"
#include "win32/MessageBoxes.h"
#include "win32/Processes.h"
#include "win32/ProfileFiles.h"
#include "win32/Registry.h"
#include "win32/Shell.h"
#include "win32/ShellIcons.h"
#include "win32/SystemInfo.h"
#include "win32/Tcp.h"
#include "win32/Windows.h"

namespace orvane::win32 {

/// The real desktop. Making one calls nothing of Windows: there is one for each thread that shows
/// menus.
struct Desktop {
  /// `module`: the DLL or program that the desktop serves.
  explicit Desktop(HINSTANCE module) : system(module) {}
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  Platform Bundle() { return Bundle(dialogs); }

  /// With dialogs that have windows.
  Platform Bundle(orvane::Dialogs& shown) {
    return {.clipboard = clipboard,
            .clock = clock,
            .dialogs = shown,
            .operations = operations,
            .files = files,
            .gdi = gdi,
            .icons = icons,
            .keyboard = keyboard,
            .launcher = launcher,
            .locale = locale,
            .menus = menus,
            .boxes = boxes,
            .processes = processes,
            .profiles = profiles,
            .registry = registry,
            .shell = shell,
            .system = system,
            .tcp = tcp,
            .windows = windows};
  }

  Clipboard clipboard;
  Clock clock;
  Dialogs dialogs;
  FileOperations operations;
  FileSystem files;
  Gdi gdi;
  ShellIcons icons;
  Keyboard keyboard;
  Launcher launcher;
  Locale locale;
  Menus menus;
  MessageBoxes boxes;
  Processes processes;
  ProfileFiles profiles;
  Registry registry;
  Shell shell;
  SystemInfo system;
  Tcp tcp;
  Windows windows;
};

}  // namespace orvane::win32
