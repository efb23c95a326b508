#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "menudoc/MenuDocument.h"
#include "platform/FileSystem.h"
#include "support/CodePage.h"

namespace orvane {

/// What a menu is checked against.
struct MenuSurroundings {
  const CodePage& codePage;     // what the definition file is written in
  FileReader* files = nullptr;  // asked for the locations; null: nobody is asked
  std::function<void(std::size_t done, std::size_t total)>
      reached{};  // after each item; may be none
};

/// All that is wrong with a menu, in the order of its items; places are those of FormatMenu's
/// document. Without `files` nothing is waited for.
std::vector<Finding> CheckMenu(const MenuDocument& menu, const MenuSurroundings& surroundings);
/// Adds what is wrong with the menu of a text to what is wrong with the text, with its places.
void CheckParsed(ParsedMenu& parsed, const MenuSurroundings& surroundings);

bool HasErrors(const std::vector<Finding>& findings);

}  // namespace orvane
