#pragma once

namespace orvane {

class Clipboard;
class Clock;
class Dialogs;
class FileOperations;
class FileSystem;
class Gdi;
class Keyboard;
class Launcher;
class Locale;
class Menus;
class MessageBoxes;
class Processes;
class ProfileFiles;
class Registry;
class Shell;
class ShellIcons;
class SystemInfo;
class Tcp;
class Windows;

/// Everything the system needs of Windows. Whole it is seen where a program is put together, by the
/// handler with its thread's globals, by the dispatch of commands, which may need any of it, and by
/// the designer's rehearsal of them. Everything else takes the few nouns that it uses.
struct Platform {
  Clipboard& clipboard;
  Clock& clock;
  Dialogs& dialogs;
  FileOperations& operations;
  FileSystem& files;
  Gdi& gdi;
  ShellIcons& icons;
  Keyboard& keyboard;
  Launcher& launcher;
  Locale& locale;
  Menus& menus;
  MessageBoxes& boxes;
  Processes& processes;
  ProfileFiles& profiles;
  Registry& registry;
  Shell& shell;
  SystemInfo& system;
  Tcp& tcp;
  Windows& windows;
};

}  // namespace orvane
