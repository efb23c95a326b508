#include "designer/Commands.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "designer/DocumentText.h"
#include "menudata/DataValues.h"
#include "support/Text.h"

namespace orvane::designer {
namespace {

using DoEdit = std::function<void(Edit)>;

template <class Visit>
void VisitAll(MenuItem& item, const Visit& visit) {
  for (const MenuItem::Owner& child : item.children) {
    visit(*child);
    VisitAll(*child, visit);
  }
}

class Selected {
 public:
  explicit Selected(const Items& items) : m_items(items.begin(), items.end()) {}

  Items Outermost(const MenuItem& top) {
    Collect(top);
    return std::move(m_found);
  }

 private:
  void Collect(const MenuItem& parent) {
    for (const MenuItem::Owner& child : parent.children) {
      if (!child->data.IsTypeRoot() && m_items.contains(child.get()))
        m_found.push_back(child.get());
      else
        Collect(*child);
    }
  }

  std::unordered_set<const MenuItem*> m_items;
  Items m_found;
};

bool HasRoot(const MenuItem& top) {
  return std::ranges::any_of(top.children,
                             [](const auto& item) { return item->data.IsTypeRoot(); });
}

/// Whether something of that many further levels may stand there.
bool Fits(const Place& place, std::size_t height) {
  const MenuItem& parent = *place.parent;
  if (!parent.HoldsItems() || (!parent.parent && HasRoot(parent))) return false;
  return parent.Depth() + 1 + height <= static_cast<std::size_t>(MaxDepth);
}

/// The first child at or behind the place that is none of the items; null for the end.
MenuItem* AnchorOf(const Place& place, const Items& items) {
  const std::unordered_set<const MenuItem*> moving(items.begin(), items.end());
  const auto& children = place.parent->children;
  for (std::size_t i = place.index; i < children.size(); ++i)
    if (!moving.contains(children[i].get())) return children[i].get();
  return nullptr;
}

Place Before(MenuItem& parent, const MenuItem* anchor) {
  return {&parent, anchor ? anchor->Index() : parent.children.size()};
}

void MoveBefore(MenuItem& parent, const MenuItem* anchor, MenuItem& item, const DoEdit& perform) {
  Place to = Before(parent, anchor);
  const Place from = PlaceOf(item);
  if (from.parent == to.parent && from.index < to.index) --to.index;
  if (from != to) perform(MoveItem{&item, to});
}

Items InsertAll(History& history, const std::wstring& name, std::vector<MenuItem::Owner> owners,
                Place at) {
  Items inserted;
  history.Do(name, [&](const DoEdit& perform) {
    for (MenuItem::Owner& owner : owners) {
      if (!Fits(at, HeightOf(*owner))) continue;
      inserted.push_back(owner.get());
      perform(InsertItem{std::move(owner), at});
      ++at.index;
    }
  });
  return inserted;
}

/// Whether the item lies in a popup that lies in something else.
bool CanLeave(const MenuItem& item) {
  return item.parent && item.parent->parent && !item.parent->data.IsTypeRoot();
}

/// Where the direction leads; no parent when nowhere.
Place Target(const Items& items, Direction direction) {
  const MenuItem& first = *items.front();
  const MenuItem& last = *items.back();
  const Place place = PlaceOf(first);
  const std::size_t behind = last.Index() + 1;
  switch (direction) {
    case Direction::Up:
      if (place.index > 0) return {place.parent, place.index - 1};
      return CanLeave(first) ? PlaceOf(*place.parent) : Place{};
    case Direction::Down:
      if (behind < last.parent->children.size()) return {last.parent, behind + 1};
      [[fallthrough]];
    case Direction::Out:
      if (!CanLeave(last)) return {};
      return {last.parent->parent, last.parent->Index() + 1};
    case Direction::In:
      if (place.index == 0) return {};
      MenuItem& above = *place.parent->children[place.index - 1];
      return above.HoldsItems() ? Place{&above, above.children.size()} : Place{};
  }
  return {};
}

MenuItem* Neighbour(const Items& items) {
  MenuItem& parent = *items.back()->parent;
  if (const MenuItem* next = AnchorOf({&parent, items.back()->Index() + 1}, items))
    return const_cast<MenuItem*>(next);
  const std::size_t first = items.front()->parent == &parent ? items.front()->Index() : 0;
  if (first > 0) return parent.children[first - 1].get();
  return parent.parent ? &parent : nullptr;
}

bool Contains(const MenuItem& item, const std::wstring& lower) {
  for (const DataField& field : DataValuesOf(item.data.m_lType)) {
    const auto* text = std::get_if<FieldText clsOrvaneData::*>(&field);
    if (text && LowerCase(std::wstring(item.data.**text)).find(lower) != std::wstring::npos)
      return true;
  }
  return false;
}

}  // namespace

Items Movable(const MenuItem& top, const Items& items) {
  return Selected(items).Outermost(top);
}

Place PlaceFor(MenuItem& top, MenuItem* item) {
  if (!item || item == &top) {
    if (!HasRoot(top)) return {&top, top.children.size()};
    item = top.children.front().get();
  }
  if (item->HoldsItems()) return {item, item->children.size()};
  return {item->parent, item->Index() + 1};
}

Items Insert(History& history, clsOrvaneData data, Place at) {
  std::vector<clsOrvaneData> records;
  records.push_back(std::move(data));
  return Insert(history, std::move(records), at);
}

Items Insert(History& history, std::vector<clsOrvaneData> records, Place at) {
  std::vector<MenuItem::Owner> owners;
  for (clsOrvaneData& data : records) {
    owners.push_back(std::make_unique<MenuItem>());
    owners.back()->data = std::move(data);
  }
  return InsertAll(history, L"Insert", std::move(owners), at);
}

Items Remove(History& history, const MenuItem& top, const Items& items) {
  const Items going = Movable(top, items);
  if (going.empty()) return {};
  MenuItem* neighbour = Neighbour(going);
  history.Do(L"Delete", [&](const DoEdit& perform) {
    for (MenuItem* item : going) perform(RemoveItem{item});
  });
  return neighbour ? Items{neighbour} : Items{};
}

Items Duplicate(History& history, const MenuItem& top, const Items& items) {
  const Items sources = Movable(top, items);
  if (sources.empty()) return {};
  std::vector<MenuItem::Owner> copies;
  for (const MenuItem* item : sources) copies.push_back(CopyOf(*item));
  return InsertAll(history, L"Duplicate", std::move(copies),
                   {sources.back()->parent, sources.back()->Index() + 1});
}

bool CanMoveTo(const MenuItem& top, const Items& items, const Place& to) {
  const Items moving = Movable(top, items);
  return to.parent && !moving.empty() && std::ranges::all_of(moving, [&](const MenuItem* item) {
           return !to.parent->IsInside(*item) && Fits(to, HeightOf(*item));
         });
}

Items MoveTo(History& history, const MenuItem& top, const Items& items, Place to) {
  if (!CanMoveTo(top, items, to)) return {};
  Items moving = Movable(top, items);
  const MenuItem* anchor = AnchorOf(to, moving);
  history.Do(L"Move", [&](const DoEdit& perform) {
    for (MenuItem* item : moving) MoveBefore(*to.parent, anchor, *item, perform);
  });
  return moving;
}

Items Move(History& history, const MenuItem& top, const Items& items, Direction direction) {
  const Items moving = Movable(top, items);
  if (moving.empty()) return {};
  return MoveTo(history, top, moving, Target(moving, direction));
}

bool IsShortcut(const std::wstring& path) {
  return LowerCase(path).ends_with(L".lnk");
}

Items ReplaceShortcuts(History& history, const Items& items,
                       const std::function<std::wstring(const std::wstring&)>& targetOf) {
  Items changed;
  history.Do(L"Replace Shortcut", [&](const DoEdit& perform) {
    for (MenuItem* item : items) {
      const std::wstring path(item->data.Location());
      const bool isOne = item->data.IsTypeFile() && IsShortcut(path);
      const std::wstring target = isOne ? targetOf(path) : std::wstring();
      if (target.empty()) continue;
      auto data = std::make_unique<clsOrvaneData>(item->data);
      data->Location(target);
      perform(ChangeItem{item, std::move(data)});
      changed.push_back(item);
    }
  });
  return changed;
}

std::string CopyText(const MenuItem& top, const Items& items) {
  MenuItem copied;
  for (const MenuItem* item : items)
    if (item->data.IsTypeRoot()) return FormatItems(DefinitionOf(top));
  for (const MenuItem* item : Movable(top, items)) copied.children.push_back(CopyOf(*item));
  return FormatItems(DefinitionOf(copied));
}

Items Paste(History& history, std::string_view text, Place at) {
  const MenuItem::Owner top = TreeOf(ItemsOfText(text));
  std::vector<MenuItem::Owner> owners;
  const auto take = [&](std::vector<MenuItem::Owner>& children) {
    std::ranges::move(children, std::back_inserter(owners));
  };
  if (HasRoot(*top))
    for (const MenuItem::Owner& item : top->children) take(item->children);
  else
    take(top->children);
  for (const MenuItem::Owner& owner : owners) owner->parent = nullptr;
  return InsertAll(history, L"Paste", std::move(owners), at);
}

void Replace(History& history, MenuItem& top, MenuItem::Owner other, const std::wstring& name) {
  history.Do(name, [&](const DoEdit& perform) {
    while (!top.children.empty()) perform(RemoveItem{top.children.back().get()});
    for (MenuItem::Owner& item : other->children)
      perform(InsertItem{std::move(item), {&top, top.children.size()}});
  });
}

MenuItem* FindText(MenuItem& top, const std::wstring& text, const MenuItem* after) {
  const std::wstring lower = LowerCase(text);
  MenuItem* first = nullptr;
  MenuItem* next = nullptr;
  bool passed = !after;
  VisitAll(top, [&](MenuItem& item) {
    if (!next && (!first || passed) && Contains(item, lower)) {
      if (!first) first = &item;
      if (passed) next = &item;
    }
    if (&item == after) passed = true;
  });
  return next ? next : first;
}

}  // namespace orvane::designer
