#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "menudata/DefinitionFile.h"
#include "platform/MessageBoxes.h"
#include "shellext/MenuWriter.h"

namespace orvane {

/// Builds the user's own menu tree: the items of the menu definition file.
class DefinitionMenu {
 public:
  DefinitionMenu(ModuleGlobals& globals, HandlerState& state, MenuWriter& writer)
      : m_globals(globals), m_state(state), m_writer(writer) {}

  /// Reads the file that the settings name into the root submenu. A missing or empty file gives no
  /// entries. False when the file cannot be used, of which the user has been told; Error for a
  /// number that is none.
  bool Read();

 private:
  bool ReadItems(DefinitionFile& file, std::int32_t count);
  bool ReadFile(DefinitionFile& file);
  MenuHandle ParentMenu(std::int32_t parentIndex) const;
  bool IsShown(const clsOrvaneData& record) const;
  bool AddItem(Command command, MenuHandle menu);
  void AddPlaceholders();
  bool Refuse(const wchar_t* message, MessageBoxes::Icon icon) const;

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuWriter& m_writer;
};

}  // namespace orvane
