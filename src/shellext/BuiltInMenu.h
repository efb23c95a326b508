#pragma once

#include <cstdint>

#include "menudata/clsMRU.h"
#include "shellext/MenuWriter.h"

namespace orvane {

/// Adds what stands below the user's own tree: the History and Quick Access lists and the built-in
/// commands that the settings switch on.
class BuiltInMenu {
 public:
  BuiltInMenu(ModuleGlobals& globals, HandlerState& state, MenuWriter& writer)
      : m_globals(globals), m_state(state), m_writer(writer) {}

  /// Stops at the first entry for which no identifier is left; what is there stays.
  void Add();

 private:
  using Target = MenuWriter::Target;

  bool AddHistory();
  bool AddQuickAccess();
  bool AddDesigner();
  bool AddResets();
  void AddCommands();
  bool OpenList(std::int32_t display, std::int32_t popupType, Target& target);
  bool AddListEntries(const clsMRU& list, const Target& target);
  void DressListEntry(const clsOrvaneData& record, MenuItem& item);
  Target Root() const { return {m_state.rootMenu}; }
  Target ShellMenu() { return {m_state.shellMenu, &m_state.menuPosition}; }
  void SeparateRoot();

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuWriter& m_writer;
};

}  // namespace orvane
