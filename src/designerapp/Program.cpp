#include "designerapp/Program.h"

#include "designer/MenuHome.h"
#include "designer/Rehearsal.h"

namespace orvane::designerapp {
namespace {

constexpr std::int32_t RecentFiles = 9;

}  // namespace

Program::Program(HINSTANCE instance)
    : instance(instance),
      desktop(instance),
      folder(desktop.system.ProgramFolder()),
      platform(desktop.Bundle()),
      globals(platform),
      document(
          designer::MenuFile(platform.files, globals.codePage, globals.scrambler, globals.tools)),
      recent(platform.registry) {
  desktop.system.ProgramFolder(designer::MenuHome(desktop.files, desktop.registry, folder));
  LoadSettings();
  recent.Path(L"Software\\Tarnwick\\Orvane\\Designer\\RecentFiles\\");
  recent.Load(RecentFiles);
}

/// Loading them for a menu would start its log anew and warn of it.
void Program::LoadSettings() {
  const designer::Rehearsal quiet(platform);
  const Platform& services = quiet.Bundle();
  globals.options.Reg_Load({services.registry, services.files, services.boxes, services.system,
                            services.clock, services.locale},
                           SettingsKey);
  globals.debug.Terminate();
  globals.timing.Terminate();
}

}  // namespace orvane::designerapp
