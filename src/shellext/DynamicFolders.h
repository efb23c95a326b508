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
  /// dynamic folder or is filled already.
  void Open(MenuHandle submenu);

 private:
  /// What was listed, in the order in which it was found, and the keys to sort it by.
  struct Listed {
    std::vector<Command> commands;
    clsCollection keys;
  };

  void CreateDynamicMenu(const DynamicMenus::Entry& entry);
  void Fill(const DynamicMenus::Entry& entry);
  void List(const clsOrvaneData& folder, Listed& listed);
  void AddEntry(const Command& command, MenuHandle menu);

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuWriter& m_writer;
};

}  // namespace orvane
