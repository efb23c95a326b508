#pragma once

#include <cstdint>
#include <memory>

#include "menudata/Arena.h"
#include "menudata/clsCollection.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Handles.h"

namespace orvane {

/// One item of a handler's menu: its record and where it stands. Copies mean the same item; a
/// command without a node is none.
class Command {
 public:
  static constexpr std::int32_t NoId = -1;  // stands in no menu

  Command() = default;
  explicit Command(clsCollection::Node node) : m_node(std::move(node)) {}
  explicit operator bool() const { return m_node != nullptr; }

  /// 1-based, in the order in which the items were added.
  std::int32_t Index() const { return m_node->Index; }

  std::shared_ptr<clsOrvaneData> Record() const {
    return std::static_pointer_cast<clsOrvaneData>(m_node->m_oData);
  }

  /// The absolute identifier of its menu entry.
  std::int32_t Id() const { return m_node->m_lKey; }
  void Id(std::int32_t id) { m_node->m_lKey = id; }

  /// The submenu that it opens, None for one that opens none. The menu owns it.
  MenuHandle Submenu() const { return ToHandle<MenuHandle>(m_node->m_lData); }
  void Submenu(MenuHandle submenu) { m_node->m_lData = ToNumber(submenu); }

  /// Whether its caption is the name of a file or folder, in which "&" is a letter like others.
  bool IsFileName() const { return m_node->m_lData2 != 0; }
  void IsFileName(bool is) { m_node->m_lData2 = is; }

  const clsCollection::Node& Node() const { return m_node; }

 private:
  clsCollection::Node m_node;
};

/// The items of one menu, by their place and by the identifiers of their entries.
class CommandTable {
 public:
  /// A record for an item to be added.
  std::shared_ptr<clsOrvaneData> NewRecord() const { return m_arena.Make<clsOrvaneData>(); }

  /// Where these records lie.
  const Arena& Memory() const { return m_arena; }

  /// An item that stands in no menu yet.
  Command Add(std::shared_ptr<clsOrvaneData> record) {
    auto node = m_arena.Make<clsCollection>();
    node->m_lKey = Command::NoId;
    node->m_oData = std::move(record);
    return Command(m_colMenuItems.Append(std::move(node)));
  }

  /// Errors as of clsCollection::Item.
  Command At(std::int32_t index) const { return Command(m_colMenuItems.Item(index)); }

  /// None for an identifier that no entry has.
  Command Find(std::int32_t id) const {
    return id == Command::NoId ? Command() : Command(m_colMenuItems.ItemViaKey(id));
  }

  std::int32_t Count() const { return m_colMenuItems.Count(); }
  void Clear() {
    m_colMenuItems.Clear();
    m_arena = {};
  }

 private:
  Arena m_arena;
  clsCollection m_colMenuItems;
};

}  // namespace orvane
