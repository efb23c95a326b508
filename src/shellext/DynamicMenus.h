#pragma once

#include <cstdint>
#include <utility>

#include "menudata/CommandTable.h"

namespace orvane {

/// The submenus of one menu's dynamic folders.
class DynamicMenus {
 public:
  /// One submenu; copies mean the same one, and one without a node is none.
  class Entry {
   public:
    explicit Entry(clsCollection::Node node) : m_node(std::move(node)) {}
    explicit operator bool() const { return m_node != nullptr; }

    MenuHandle Submenu() const { return ToHandle<MenuHandle>(m_node->m_lKey); }
    Command Folder() const {
      return Command(std::static_pointer_cast<clsCollection>(m_node->m_oData));
    }
    bool IsFilled() const { return m_node->m_lData != 0; }
    void SetFilled() { m_node->m_lData = 1; }
    /// Whether its placeholder says that the folder did not answer.
    bool SaysNoAnswer() const { return m_node->m_lData2 != 0; }
    void SayNoAnswer(bool says) { m_node->m_lData2 = says; }

   private:
    clsCollection::Node m_node;
  };

  /// A submenu that is not filled yet.
  void Add(MenuHandle submenu, const Command& folder) {
    m_colDynamicMenus.Add({}, ToNumber(submenu), folder.Node());
  }

  Entry Find(MenuHandle submenu) const {
    return Entry(m_colDynamicMenus.ItemViaKey(ToNumber(submenu)));
  }

  /// Calls `act` with the handle of every submenu.
  template <class Act>
  void ForEach(Act act) const {
    for (const auto& node : m_colDynamicMenus) act(Entry(node).Submenu());
  }

  std::int32_t Count() const { return m_colDynamicMenus.Count(); }
  void Clear() { m_colDynamicMenus.Clear(); }

 private:
  clsCollection m_colDynamicMenus;
};

}  // namespace orvane
