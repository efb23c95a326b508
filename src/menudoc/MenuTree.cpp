#include "menudoc/MenuTree.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "menudoc/JsonText.h"

namespace orvane {
namespace {

std::string Number(std::size_t item) {
  return "item " + std::to_string(item + 1);
}

std::size_t ParentOf(const Definition& definition, std::size_t item) {
  const std::int32_t parent = definition.items[item].parent;
  if (parent < 0 || static_cast<std::size_t>(parent) > item)
    throw DocumentError(Number(item) + ": its parent, item " + std::to_string(parent) +
                        ", does not stand before it");
  return static_cast<std::size_t>(parent);
}

/// The file's places of the children, by the parent's place.
std::vector<std::vector<std::size_t>> ChildrenOf(const Definition& definition) {
  std::vector<std::vector<std::size_t>> children(definition.items.size() + 1);
  for (std::size_t i = 0; i < definition.items.size(); ++i)
    children[ParentOf(definition, i)].push_back(i + 1);
  return children;
}

/// Adds `offset` to the parents that are not below `first`; the others become `top`.
void Renumber(std::vector<Definition::Item>::iterator begin,
              std::vector<Definition::Item>::iterator end, std::int32_t first, std::int32_t top,
              std::int32_t offset) {
  for (auto item = begin; item != end; ++item)
    item->parent = item->parent < first ? top : item->parent + offset;
}

std::int32_t Signed(std::size_t number) {
  return static_cast<std::int32_t>(number);
}

auto At(std::vector<Definition::Item>& items, std::size_t index) {
  return items.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

MenuDocument InTreeOrder(Definition definition) {
  const auto children = ChildrenOf(definition);
  MenuDocument menu{definition.header, {}};
  menu.items.reserve(definition.items.size());
  std::vector<std::int32_t> placeOf(definition.items.size() + 1);
  std::vector<std::size_t> open(children[0].rbegin(), children[0].rend());  // the next one last
  while (!open.empty()) {
    const std::size_t item = open.back();
    open.pop_back();
    Definition::Item& moved = definition.items[item - 1];
    moved.parent = placeOf[static_cast<std::size_t>(moved.parent)];
    menu.items.push_back(std::move(moved));
    placeOf[item] = Signed(menu.items.size());
    open.insert(open.end(), children[item].rbegin(), children[item].rend());
  }
  const std::vector<int> depths = DepthsOf(menu);
  if (std::ranges::any_of(depths, [](int depth) { return depth > MaxDepth; }))
    throw DocumentError("popups lie in more than " + std::to_string(MaxDepth) + " popups");
  return menu;
}

std::size_t EndOfItem(const MenuDocument& menu, std::size_t item) {
  const std::int32_t self = Signed(item) + 1;
  std::size_t end = item + 1;
  while (end < menu.items.size() && menu.items[end].parent >= self) ++end;
  return end;
}

std::vector<int> DepthsOf(const MenuDocument& menu) {
  std::vector<int> depths;
  depths.reserve(menu.items.size());
  const std::int32_t top = HasRoot(menu) ? 1 : 0;
  for (const auto& [parent, data] : menu.items)
    depths.push_back(parent <= top ? 0 : depths[static_cast<std::size_t>(parent) - 1] + 1);
  return depths;
}

MenuDocument CopyItems(const MenuDocument& menu, std::size_t first, std::size_t last) {
  MenuDocument copy;
  copy.items.assign(std::next(menu.items.begin(), Signed(first)),
                    std::next(menu.items.begin(), Signed(last)));
  Renumber(copy.items.begin(), copy.items.end(), Signed(first) + 1, 0, -Signed(first));
  return copy;
}

void RemoveItem(MenuDocument& menu, std::size_t item) {
  const std::size_t end = EndOfItem(menu, item);
  const std::int32_t removed = Signed(end - item);
  for (auto below = At(menu.items, end); below != menu.items.end(); ++below) {
    if (below->parent > Signed(item)) below->parent -= removed;
  }
  menu.items.erase(At(menu.items, item), At(menu.items, end));
}

void InsertItems(MenuDocument& menu, std::size_t at, std::int32_t parent,
                 const MenuDocument& items) {
  const std::int32_t added = Signed(items.items.size());
  for (auto below = At(menu.items, at); below != menu.items.end(); ++below) {
    if (below->parent > Signed(at)) below->parent += added;
  }
  menu.items.insert(At(menu.items, at), items.items.begin(), items.items.end());
  Renumber(At(menu.items, at), At(menu.items, at + items.items.size()), 1, parent, Signed(at));
}

bool HasRoot(const MenuDocument& menu) {
  return !menu.items.empty() && menu.items[0].data.IsTypeRoot() &&
         EndOfItem(menu, 0) == menu.items.size();
}

std::vector<std::string> PlacesOf(const MenuDocument& menu) {
  std::vector<std::string> places;
  std::vector<std::size_t> children(menu.items.size() + 1);  // seen so far, by the parent's place
  const bool hasRoot = HasRoot(menu);
  for (const auto& [parent, data] : menu.items) {
    const auto above = static_cast<std::size_t>(parent);
    if (hasRoot && parent == 0)
      places.emplace_back();
    else
      places.push_back(
          ElementPlace((above == 0 ? "" : places[above - 1]) + "/items", children[above]++));
  }
  return places;
}

}  // namespace orvane
