#pragma once

#include <functional>

#include "designer/Desk.h"

namespace orvane::test {

inline void Collect(MenuItem& parent, Items& items) {
  for (const MenuItem::Owner& child : parent.children) {
    items.push_back(child.get());
    Collect(*child, items);
  }
}

inline Items AllOf(MenuItem& top) {
  Items items;
  Collect(top, items);
  return items;
}

/// Does things to a menu as its source of numbers has it.
class Monkey {
 public:
  Monkey(Desk& desk, std::function<std::size_t()> next) : m_desk(desk), m_next(std::move(next)) {}

  void Act() {
    designer::History& edits = m_desk.Edits();
    MenuItem& top = m_desk.Top();
    const bool hasRoom = AllOf(top).size() < 300;
    switch (Below(11)) {
      case 0:
      case 1:
        Insert(edits, AnyRecord(), PlaceFor(top, Any()));
        break;
      case 2:
        Remove(edits, top, Some());
        break;
      case 3:
        if (hasRoom) Duplicate(edits, top, Some());
        break;
      case 4:
        Move(edits, top, Some(), static_cast<designer::Direction>(Below(4)));
        break;
      case 5: {
        MenuItem* parent = Any();
        MoveTo(edits, top, Some(), {parent, Below(parent->children.size() + 1)});
        break;
      }
      case 6:
        m_text = CopyText(top, Some());
        break;
      case 7:
        if (hasRoom && !m_text.empty()) Paste(edits, m_text, PlaceFor(top, Any()));
        break;
      case 8:
        edits.Undo();
        break;
      case 9:
        edits.Redo();
        break;
      default:
        Type(*Any());
    }
  }

 private:
  std::size_t Below(std::size_t limit) { return m_next() % limit; }

  MenuItem* Any() {
    const Items items = AllOf(m_desk.Top());
    return items[Below(items.size())];
  }

  Items Some() {
    Items some;
    for (std::size_t i = Below(4); i-- > 0;) some.push_back(Any());
    return some;
  }

  Data AnyRecord() {
    constexpr std::int32_t Types[] = {2, 2, 1, 3, 6, 7, 8, 9, 10, 4711};
    Data data = Record(Types[Below(std::size(Types))], L"new", L"C:\\Work");
    data.m_lOptions = static_cast<std::int32_t>(Below(16));
    return data;
  }

  void Type(MenuItem& item) {
    Data data = item.data;
    data.Caption(std::wstring(Below(4), L'x') + L"\x20AC");
    m_desk.Edits().Type(L"Change Caption", item, data);
  }

  Desk& m_desk;
  std::function<std::size_t()> m_next;
  std::string m_text;
};

}  // namespace orvane::test
