#pragma once

#include <vector>

#include "shellext/MenuWriter.h"

namespace orvane {

/// Lists folders into their submenus, each when it first opens.
class DynamicFolders {
 public:
  DynamicFolders(ModuleGlobals& globals, HandlerState& state, MenuWriter& writer)
      : m_globals(globals), m_state(state), m_writer(writer) {}

  /// The submenu is about to be shown (WM_INITMENUPOPUP). Nothing happens for a submenu that is no
  /// dynamic folder or is filled already. A folder on a share that does not answer in time says so,
  /// and is asked again when it is opened again.
  void Open(MenuHandle submenu);

 private:
  /// What was listed, in the order in which it was found, and the keys to sort it by.
  struct Listed {
    std::vector<Command> commands;
    clsCollection keys;
  };

  bool CreateDynamicMenu(DynamicMenus::Entry entry);
  bool Fill(DynamicMenus::Entry entry);
  bool List(const clsOrvaneData& folder, Listed& listed);
  void SayWhatIsThere(DynamicMenus::Entry entry, bool answered);
  bool TakeNoAnswerId();
  void AddEntry(const Command& command, MenuHandle menu);

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuWriter& m_writer;
};

}  // namespace orvane
