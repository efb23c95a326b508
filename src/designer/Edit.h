#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "designer/MenuItem.h"

namespace orvane::designer {

// The edits that everything done to a menu is made of.

/// Puts an item, which is in no menu, there.
struct InsertItem {
  MenuItem::Owner item;
  Place at;
};

struct RemoveItem {
  MenuItem* item;
};

/// `to` counts as if the item were gone from its present place.
struct MoveItem {
  MenuItem* item;
  Place to;
};

/// Gives the item another record.
struct ChangeItem {
  MenuItem* item;
  std::unique_ptr<clsOrvaneData> data;
};

using Edit = std::variant<InsertItem, RemoveItem, MoveItem, ChangeItem>;

/// What shows the menu and follows its edits. Each call comes when the edit is done, but for
/// Removing and Clearing.
class EditListener {
 public:
  virtual ~EditListener() = default;

  virtual void Inserted(MenuItem& item) = 0;
  virtual void Removing(MenuItem& item) = 0;
  virtual void Changed(MenuItem& item) = 0;
  /// The document is about to show another menu: all items go.
  virtual void Clearing() = 0;
};

/// Does the edit; the answer is the edit that takes it back. A move is a removal and an insertion
/// to the listener, which may be null.
Edit Perform(Edit edit, EditListener* listener);

}  // namespace orvane::designer
