#pragma once

#include <windows.h>

#include <string>

namespace orvane::server {

/// The DLL itself: its handle, and whether somebody still needs it. Everything that COM has handed
/// out holds a ModuleLock.
class Module {
 public:
  static void Handle(HINSTANCE handle);
  static HINSTANCE Handle();

  /// Full path of the DLL, of any length; empty when the system does not tell.
  static std::wstring Path();

  static void Lock();
  static void Unlock();
  static bool InUse();

  /// Keeps the DLL in the process from now on, whatever InUse says: each time that it is loaded its
  /// run-time library takes one of the process's few thread slots, and never gives it back.
  static void Pin();

  /// Whether the process is at its end, and with it every other thread, rather than the DLL alone.
  static void ProcessEnds(bool ends);
  static bool ProcessEnds();
};

/// Something of the module's that somebody holds.
class ModuleLock {
 public:
  ModuleLock() { Module::Lock(); }
  ~ModuleLock() { Module::Unlock(); }
  ModuleLock(const ModuleLock&) = delete;
  ModuleLock& operator=(const ModuleLock&) = delete;
};

}  // namespace orvane::server
