// Settings in a registry export: the menu starts with whatever it finds there, the companion takes
// all of it or says why not, and what either has read is written and read again as the same.

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

#include "SettingText.h"
#include "SettingsImport.h"
#include "memory/Desktop.h"
#include "shellext/ModuleGlobals.h"
#include "support/Error.h"

namespace {

using namespace orvane;

std::vector<memory::RegFileChange> Changes(std::span<const std::byte> bytes) {
  try {
    return memory::ReadRegFile(bytes);
  } catch (const Error&) {
    return {};
  }
}

/// The settings as the menu has them, written as texts and read from those.
void CheckTexts(Registry& registry, SystemInfo& system) {
  const clsOptions options = tool::LoadSettings(registry, system);
  for (const Setting& setting : Settings()) {
    const tool::SettingValue value = tool::ValueOf(options, setting);
    try {
      if (tool::ParseSetting(setting, tool::SettingText(setting, value)) != value) std::abort();
    } catch (const std::runtime_error&) {  // a value that users cannot choose
    }
  }
}

void CheckImport(std::span<const memory::RegFileChange> changes) {
  try {
    for (const tool::SettingChange& change : tool::ReadSettings(changes).changes) {
      if (!change.value) continue;
      const tool::SettingValue value = tool::FromRegistry(*change.setting, *change.value);
      if (tool::FromRegistry(*change.setting, tool::ToRegistry(value)) != value) std::abort();
    }
  } catch (const std::runtime_error&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto changes = Changes(std::as_bytes(std::span(data, size)));
  const std::vector<std::byte> written = memory::FormatRegFile(changes);
  if (memory::FormatRegFile(Changes(written)) != written) std::abort();
  memory::Desktop desktop;
  memory::ApplyRegFile(changes, desktop.registry);
  ModuleGlobals(desktop.Bundle());
  CheckTexts(desktop.registry, desktop.system);
  CheckImport(changes);
  return 0;
}
