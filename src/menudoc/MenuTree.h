#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "menudoc/MenuDocument.h"

namespace orvane {

// Reading and editing the tree that a menu's items make. Items are named by their 0-based index.

/// The items in tree order; siblings keep their order. DocumentError for a parent that does not
/// stand before its item and for more than MaxDepth popups within popups.
MenuDocument InTreeOrder(Definition definition);

/// Behind the last item that lies below `item`.
std::size_t EndOfItem(const MenuDocument& menu, std::size_t item);
/// Items that an item lies in; the document's own root does not count.
std::vector<int> DepthsOf(const MenuDocument& menu);

/// The items from `first` to before `last` as a menu of their own; those whose parent is not among
/// them have none.
MenuDocument CopyItems(const MenuDocument& menu, std::size_t first, std::size_t last);
/// Takes an item and all below it out.
void RemoveItem(MenuDocument& menu, std::size_t item);
/// Puts items before index `at`, the ones without a parent below `parent` (as an item has it:
/// 1-based, 0 for none). `at` is the index of one of the parent's children or the end of the
/// parent.
void InsertItems(MenuDocument& menu, std::size_t at, std::int32_t parent,
                 const MenuDocument& items);

/// Whether the whole menu hangs below its first item, a root: the document is that root then.
bool HasRoot(const MenuDocument& menu);
/// JSON pointers to the items, in the document that FormatMenu makes of the menu.
std::vector<std::string> PlacesOf(const MenuDocument& menu);

}  // namespace orvane
