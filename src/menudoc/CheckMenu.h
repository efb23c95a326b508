#pragma once

#include <vector>

#include "menudoc/MenuDocument.h"
#include "platform/FileSystem.h"
#include "support/CodePage.h"

namespace orvane {

/// What a menu is checked against.
struct MenuSurroundings {
  const CodePage& codePage;     // what the definition file is written in
  FileReader* files = nullptr;  // asked for the locations; null: they are not looked for
};

/// All that is wrong with a menu, in the order of its items.
std::vector<Finding> CheckMenu(const MenuDocument& menu, const MenuSurroundings& surroundings);

bool HasErrors(const std::vector<Finding>& findings);

}  // namespace orvane
