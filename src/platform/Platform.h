#pragma once

namespace orvane {

class Clock;
class FileSystem;
class Locale;
class Menus;
class MessageBoxes;
class ProfileFiles;
class Registry;
class Shell;
class SystemInfo;
class Tcp;
class Windows;

/// Everything the system needs of Windows. Only the places where a program is put together see it
/// whole; everybody else takes the few nouns he uses.
struct Platform {
  Clock& clock;
  FileSystem& files;
  Locale& locale;
  Menus& menus;
  MessageBoxes& boxes;
  ProfileFiles& profiles;
  Registry& registry;
  Shell& shell;
  SystemInfo& system;
  Tcp& tcp;
  Windows& windows;
};

}  // namespace orvane
