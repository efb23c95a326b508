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
  explicit Program(HINSTANCE instance)
      : instance(instance),
        desktop(instance),
        platform(desktop.Bundle()),
        globals(platform),
        document(
            designer::MenuFile(platform.files, globals.codePage, globals.g_Debug, globals.tools)) {}

  HINSTANCE instance;
  win32::Desktop desktop;
  Platform platform;
  ModuleGlobals globals;
  designer::Document document;
  designer::Sample sample;
};

}  // namespace orvane::designerapp
