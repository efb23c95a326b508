#include "designer/MenuItem.h"

#include <algorithm>
#include <string>

#include "menudoc/MenuDocument.h"

namespace orvane::designer {
namespace {

void Append(const MenuItem& parent, std::int32_t place, Definition& definition) {
  for (const MenuItem::Owner& child : parent.children) {
    definition.items.push_back({place, child->data});
    Append(*child, static_cast<std::int32_t>(definition.items.size()), definition);
  }
}

[[noreturn]] void Refuse(std::size_t item, std::int32_t parent, const wchar_t* reason) {
  throw Error(Error::InvalidArgument, L"item " + std::to_wstring(item + 1) +
                                          L": its parent, item " + std::to_wstring(parent) + L", " +
                                          reason);
}

}  // namespace

std::size_t MenuItem::Index() const {
  const auto found = std::ranges::find(parent->children, this, &Owner::get);
  return static_cast<std::size_t>(found - parent->children.begin());
}

bool MenuItem::IsInside(const MenuItem& other) const {
  for (const MenuItem* item = this; item; item = item->parent)
    if (item == &other) return true;
  return false;
}

std::size_t MenuItem::Depth() const {
  std::size_t depth = 0;
  for (const MenuItem* item = parent; item; item = item->parent) ++depth;
  return depth;
}

MenuItem::Owner CopyOf(const MenuItem& item) {
  auto copy = std::make_unique<MenuItem>();
  copy->data = item.data;
  for (const MenuItem::Owner& child : item.children) {
    copy->children.push_back(CopyOf(*child));
    copy->children.back()->parent = copy.get();
  }
  return copy;
}

std::size_t HeightOf(const MenuItem& item) {
  std::size_t height = 0;
  for (const MenuItem::Owner& child : item.children)
    height = std::max(height, HeightOf(*child) + 1);
  return height;
}

MenuItem::Owner TreeOf(const Definition& definition) {
  auto top = std::make_unique<MenuItem>();
  std::vector<MenuItem*> made{top.get()};
  std::vector<std::size_t> depths{0};
  for (std::size_t i = 0; i < definition.items.size(); ++i) {
    const auto& [place, data] = definition.items[i];
    if (place < 0 || static_cast<std::size_t>(place) > i)
      Refuse(i, place, L"does not stand before it");
    MenuItem& parent = *made[static_cast<std::size_t>(place)];
    if (!parent.HoldsItems()) Refuse(i, place, L"is no popup");
    depths.push_back(depths[static_cast<std::size_t>(place)] + 1);
    if (depths.back() > static_cast<std::size_t>(MaxDepth)) Refuse(i, place, L"is nested too deep");
    MenuItem& item = *parent.children.emplace_back(std::make_unique<MenuItem>());
    item.data = data;
    item.parent = &parent;
    made.push_back(&item);
  }
  return top;
}

Definition DefinitionOf(const MenuItem& top, const clsFileHeader& header) {
  Definition definition{header, {}};
  Append(top, 0, definition);
  definition.header.ItemCount = static_cast<std::int32_t>(definition.items.size());
  return definition;
}

}  // namespace orvane::designer
