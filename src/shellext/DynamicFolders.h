#pragma once

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
  void CreateDynamicMenu(const clsCollection& node);
  void List(const clsOrvaneData& folder, clsCollection& sorted);
  void AddEntry(const clsCollection::Node& node, MenuHandle menu);

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuWriter& m_writer;
};

}  // namespace orvane
