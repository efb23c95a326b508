#include "designer/Edit.h"

#include <utility>

namespace orvane::designer {
namespace {

using Difference = std::ptrdiff_t;

/// Does one edit on the items.
class Performer {
 public:
  explicit Performer(EditListener* listener) : m_listener(listener) {}

  Edit operator()(InsertItem edit) const {
    MenuItem* item = edit.item.get();
    PutIn(std::move(edit.item), edit.at);
    return RemoveItem{item};
  }

  Edit operator()(RemoveItem edit) const {
    const Place place = PlaceOf(*edit.item);
    return InsertItem{TakeOut(place), place};
  }

  Edit operator()(MoveItem edit) const {
    const Place from = PlaceOf(*edit.item);
    PutIn(TakeOut(from), edit.to);
    return MoveItem{edit.item, from};
  }

  Edit operator()(ChangeItem edit) const {
    std::swap(edit.item->data, *edit.data);
    if (m_listener) m_listener->Changed(*edit.item);
    return edit;
  }

 private:
  MenuItem::Owner TakeOut(const Place& place) const {
    auto& children = place.parent->children;
    const auto at = children.begin() + static_cast<Difference>(place.index);
    if (m_listener) m_listener->Removing(**at);
    MenuItem::Owner item = std::move(*at);
    children.erase(at);
    item->parent = nullptr;
    return item;
  }

  void PutIn(MenuItem::Owner owner, const Place& place) const {
    auto& children = place.parent->children;
    MenuItem& item = *owner;
    children.insert(children.begin() + static_cast<Difference>(place.index), std::move(owner));
    item.parent = place.parent;
    if (m_listener) m_listener->Inserted(item);
  }

  EditListener* m_listener;
};

}  // namespace

Edit Perform(Edit edit, EditListener* listener) {
  return std::visit(Performer(listener), std::move(edit));
}

}  // namespace orvane::designer
