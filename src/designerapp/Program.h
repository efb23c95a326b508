#pragma once

#include <windows.h>

#include "designer/Document.h"
#include "designer/Sample.h"
#include "shellext/ModuleGlobals.h"
#include "win32/Desktop.h"

namespace orvane::designerapp {

inline constexpr const wchar_t* SettingsKey = L"Software\\Tarnwick\\Orvane\\";

/// What the designer's windows share: the desktop, the settings and the menu that is designed.
struct Program {
  explicit Program(HINSTANCE instance);

  /// Reads the settings again.
  void LoadSettings();

  HINSTANCE instance;
  win32::Desktop desktop;
  Platform platform;
  ModuleGlobals globals;
  designer::Document document;
  designer::Sample sample;
  clsMRU recent;  // files that were opened or saved
};

}  // namespace orvane::designerapp
