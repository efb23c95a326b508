#pragma once

#include "memory/Answers.h"
#include "memory/Clipboard.h"
#include "memory/Clock.h"
#include "memory/Dialogs.h"
#include "memory/Effects.h"
#include "memory/Faults.h"
#include "memory/FileOperations.h"
#include "memory/FileSystem.h"
#include "memory/Gdi.h"
#include "memory/Keyboard.h"
#include "memory/Launcher.h"
#include "memory/Locale.h"
#include "memory/Menus.h"
#include "memory/MessageBoxes.h"
#include "memory/Processes.h"
#include "memory/ProfileFiles.h"
#include "memory/Registry.h"
#include "memory/Shell.h"
#include "memory/ShellIcons.h"
#include "memory/SystemInfo.h"
#include "memory/Tcp.h"
#include "memory/Windows.h"
#include "platform/Platform.h"

namespace orvane::memory {

/// A small Windows desktop in memory: every noun of the platform, what left the component through
/// them, and the faults that a test puts in their way.
struct Desktop {
  Desktop() { files.AddFolder(system.programFolder); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  Platform Bundle() {
    return {.clipboard = clipboard,
            .clock = clock,
            .dialogs = dialogs,
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

  Effects effects;
  Faults faults;
  Answers answers;

  Clock clock{effects};
  Locale locale;
  SystemInfo system;
  FileSystem files{clock, effects, faults};
  ProfileFiles profiles{files};
  Registry registry{effects, faults, system};
  Tcp tcp{faults};
  Menus menus{faults};
  Windows windows{effects, faults};
  Shell shell{files, faults};
  MessageBoxes boxes{effects, faults, answers};
  Gdi gdi{faults};
  ShellIcons icons{files, faults};
  Clipboard clipboard{effects, faults};
  Keyboard keyboard{clock, effects, faults};
  Processes processes{windows, effects, faults};
  Launcher launcher{shell, windows, effects, faults};
  FileOperations operations{effects, faults};
  Dialogs dialogs{shell, faults, answers};
};

}  // namespace orvane::memory
