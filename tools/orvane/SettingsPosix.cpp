#include <stdexcept>

#include "SettingsStore.h"

namespace orvane::tool {

std::unique_ptr<SettingsStore> OpenUserSettings() {
  throw std::runtime_error("this system has no registry: name a registry export with --file");
}

}  // namespace orvane::tool
