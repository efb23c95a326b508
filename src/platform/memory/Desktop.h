#pragma once

#include "platform/Platform.h"
#include "platform/memory/Answers.h"
#include "platform/memory/Clipboard.h"
#include "platform/memory/Clock.h"
#include "platform/memory/Dialogs.h"
#include "platform/memory/Effects.h"
#include "platform/memory/Faults.h"
#include "platform/memory/FileOperations.h"
#include "platform/memory/FileSystem.h"
#include "platform/memory/Gdi.h"
#include "platform/memory/Keyboard.h"
#include "platform/memory/Launcher.h"
#include "platform/memory/Locale.h"
#include "platform/memory/Menus.h"
#include "platform/memory/MessageBoxes.h"
#include "platform/memory/Processes.h"
#include "platform/memory/ProfileFiles.h"
#include "platform/memory/Registry.h"
#include "platform/memory/Shell.h"
#include "platform/memory/ShellIcons.h"
#include "platform/memory/SystemInfo.h"
#include "platform/memory/Tcp.h"
#include "platform/memory/Windows.h"

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
  Registry registry{effects, faults};
  Tcp tcp{faults};
  Menus menus{faults};
  Windows windows{effects, faults};
  Shell shell{files, faults};
  MessageBoxes boxes{effects, faults, answers};
  Gdi gdi{faults};
  ShellIcons icons{files, faults};
  Clipboard clipboard{effects, faults};
  Keyboard keyboard{effects, faults};
  Processes processes{windows, effects, faults};
  Launcher launcher{shell, windows, effects, faults};
  FileOperations operations{effects, faults};
  Dialogs dialogs{shell, faults, answers};
};

}  // namespace orvane::memory
