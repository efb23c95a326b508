#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "menudata/Definition.h"

namespace orvane::designer {

/// One item of the menu that is designed, with the items it holds. It stays the same object while
/// edits move it, take it out and put it back.
struct MenuItem {
  using Owner = std::unique_ptr<MenuItem>;

  clsOrvaneData data;
  MenuItem* parent = nullptr;  // null: the top, or not in a menu
  std::vector<Owner> children;

  /// Whether the menu can show items below it: a root, a popup, the top.
  bool HoldsItems() const { return !parent || data.IsTypeRoot() || data.IsTypePopupMenu(); }
  /// Its place among its parent's children, which must have it.
  std::size_t Index() const;
  bool IsInside(const MenuItem& other) const;  // or is it
  std::size_t Depth() const;                   // 0 for the top
};

/// Where an item stands, or is to stand: before the child of that index.
struct Place {
  MenuItem* parent = nullptr;
  std::size_t index = 0;

  bool operator==(const Place&) const = default;
};

inline Place PlaceOf(const MenuItem& item) {
  return {item.parent, item.Index()};
}

/// A copy with everything below it, in no menu.
MenuItem::Owner CopyOf(const MenuItem& item);

/// The levels below the item: 0 without children.
std::size_t HeightOf(const MenuItem& item);

/// What the designer opens: the items of a definition as a tree whose top is no item itself. Error
/// for a parent that does not stand before its item or cannot hold items.
MenuItem::Owner TreeOf(const Definition& definition);

/// The items below `top` as a definition; `header` keeps its first and third value.
Definition DefinitionOf(const MenuItem& top, const clsFileHeader& header = {});

}  // namespace orvane::designer
