#pragma once

#include <windows.h>

#include "designer/Document.h"
#include "designer/Sample.h"
#include "menudata/SettingsTable.h"
#include "shellext/ModuleGlobals.h"
#include "win32/Desktop.h"

namespace orvane::designerapp {

/// What the designer's windows share: the desktop, the settings and the menu that is designed.
struct Program {
  explicit Program(HINSTANCE instance);

  /// Reads the settings again.
  void LoadSettings();

  HINSTANCE instance;
  win32::Desktop desktop;
  std::wstring folder;  // the designer's own; the platform's is that of the DLL it serves
  Platform platform;
  ModuleGlobals globals;
  designer::Document document;
  designer::Sample sample;
  clsMRU recent;  // files that were opened or saved
};

}  // namespace orvane::designerapp
