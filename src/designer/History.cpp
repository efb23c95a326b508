#include "designer/History.h"

#include <algorithm>
#include <utility>

namespace orvane::designer {
namespace {

/// The item that an edit, once done, leaves in the menu; null when it leaves none.
MenuItem* ItemLeftBy(const Edit& inverse) {
  if (const auto* remove = std::get_if<RemoveItem>(&inverse)) return remove->item;
  if (const auto* move = std::get_if<MoveItem>(&inverse)) return move->item;
  if (const auto* change = std::get_if<ChangeItem>(&inverse)) return change->item;
  MenuItem* parent = std::get<InsertItem>(inverse).at.parent;
  return parent->parent ? parent : nullptr;
}

MenuItem* Shown(const History::Step& inverse) {
  return inverse.edits.empty() ? nullptr : ItemLeftBy(inverse.edits.back());
}

}  // namespace

History::Step History::Reverse(Step step) {
  Step inverse{std::move(step.name), {}};
  for (Edit& edit : step.edits) inverse.edits.push_back(Perform(std::move(edit), m_listener));
  std::ranges::reverse(inverse.edits);
  return inverse;
}

void History::Add(Step inverse) {
  if (m_saved != Nowhere && m_saved > m_done.size()) m_saved = Nowhere;
  m_undone.clear();
  m_done.push_back(std::move(inverse));
}

void History::Do(const std::wstring& name, const Work& work) {
  m_typing = false;
  Step inverse{name, {}};
  try {
    work([&](Edit edit) { inverse.edits.push_back(Perform(std::move(edit), m_listener)); });
  } catch (...) {
    std::ranges::reverse(inverse.edits);
    Reverse(std::move(inverse));
    throw;
  }
  std::ranges::reverse(inverse.edits);
  if (!inverse.edits.empty()) Add(std::move(inverse));
}

bool History::ContinuesTyping(const std::wstring& name, const MenuItem& item) const {
  if (!m_typing || m_done.empty() || m_done.back().name != name) return false;
  const auto* change = std::get_if<ChangeItem>(&m_done.back().edits.front());
  return change && change->item == &item;
}

void History::Type(const std::wstring& name, MenuItem& item, clsOrvaneData data) {
  ChangeItem change{&item, std::make_unique<clsOrvaneData>(std::move(data))};
  if (ContinuesTyping(name, item)) {
    Perform(std::move(change), m_listener);
    return;
  }
  Do(name, [&](const auto& perform) { perform(std::move(change)); });
  m_typing = true;
}

MenuItem* History::Undo() {
  m_typing = false;
  if (m_done.empty()) return nullptr;
  Step step = std::move(m_done.back());
  m_done.pop_back();
  m_undone.push_back(Reverse(std::move(step)));
  return Shown(m_undone.back());
}

MenuItem* History::Redo() {
  m_typing = false;
  if (m_undone.empty()) return nullptr;
  Step step = std::move(m_undone.back());
  m_undone.pop_back();
  m_done.push_back(Reverse(std::move(step)));
  return Shown(m_done.back());
}

void History::Saved() {
  m_saved = m_done.size();
  m_typing = false;
}

void History::Clear() {
  *this = History{};
}

}  // namespace orvane::designer
