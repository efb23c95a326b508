#include "menudata/clsCollection.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>
#include <variant>

#include "support/Error.h"

namespace orvane {

/// The nodes and, over the first `indexed` of them, the slot of the first one with each key. The
/// index is made by lookups only, so that building a list pays nothing for it, and grows by what
/// was appended since.
struct clsCollection::List {
  std::vector<Node> nodes;
  std::unordered_map<std::int32_t, std::size_t> slots;
  std::size_t indexed = 0;

  const Node* Find(std::int32_t key) {
    for (; indexed < nodes.size(); ++indexed) slots.try_emplace(nodes[indexed]->m_lKey, indexed);
    const auto found = slots.find(key);
    return found == slots.end() ? nullptr : &nodes[found->second];
  }

  /// The node in that slot goes, or gets another key: the last one indexed is taken out again,
  /// which is what a list under construction needs; for any other the index is made anew.
  void Forget(std::size_t slot) {
    if (slot >= indexed) return;
    if (slot + 1 == indexed) {
      const auto entry = slots.find(nodes[slot]->m_lKey);
      if (entry->second == slot) slots.erase(entry);
      indexed = slot;
    } else {
      slots.clear();
      indexed = 0;
    }
  }
};

clsCollection::Key& clsCollection::Key::operator=(std::int32_t value) {
  if (m_holder && value != m_value) m_holder->m_list->Forget(m_slot);
  m_value = value;
  return *this;
}

clsCollection::clsCollection() = default;

clsCollection::~clsCollection() {
  Clear();
}

clsCollection::List& clsCollection::OwnList() {
  if (!m_list) m_list = std::make_unique<List>();
  return *m_list;
}

clsCollection::Node clsCollection::Append(Node node) {
  List& list = OwnList();
  list.nodes.push_back(node);
  node->m_lKey.m_holder = this;
  node->m_lKey.m_slot = static_cast<std::uint32_t>(list.nodes.size() - 1);
  node->Index = Count();
  return node;
}

clsCollection::Node clsCollection::Add(FieldText szKey, std::int32_t lKey,
                                       std::shared_ptr<Object> oData, FieldText szData,
                                       std::int32_t lData) {
  auto node = std::make_shared<clsCollection>();
  node->m_szKey = std::move(szKey);
  node->m_lKey = lKey;
  node->m_oData = std::move(oData);
  node->m_szData = std::move(szData);
  node->m_lData = lData;
  return Append(std::move(node));
}

clsCollection::Node clsCollection::AddEx(const clsCollection& source) {
  auto node = std::make_shared<clsCollection>();
  node->FillFrom(source);
  return Append(std::move(node));
}

clsCollection::Node clsCollection::DUP() const {
  auto copy = std::make_shared<clsCollection>();
  copy->FillFrom(*this);
  copy->Index = Index;
  return copy;
}

void clsCollection::FillFrom(const clsCollection& source) {
  m_szKey = source.m_szKey;
  m_szData = source.m_szData;
  m_szData2 = source.m_szData2;
  m_szData3 = source.m_szData3;
  m_lKey = source.m_lKey;
  m_lData = source.m_lData;
  m_lData2 = source.m_lData2;
  m_lData3 = source.m_lData3;
  m_oData = source.m_oData;
  m_Parent = source.m_Parent;
  m_SiblingLeft = source.m_SiblingLeft;
  m_SiblingRight = source.m_SiblingRight;
  m_Child = source.m_Child;
  m_szFilename = source.m_szFilename;
}

void clsCollection::Swap(clsCollection& first, clsCollection& second) {
  clsCollection aside;
  aside.FillFrom(first);
  first.FillFrom(second);
  second.FillFrom(aside);
}

clsCollection::Node clsCollection::Item(std::int32_t index, bool raiseError) const {
  if (index < 1) throw Error(Error::OutOfRange, L"Position below 1", L"clsCollection");
  if (index <= Count()) return m_list->nodes[static_cast<std::size_t>(index) - 1];
  if (raiseError) throw Error(Error::InvalidArgument, L"Position beyond the end", L"clsCollection");
  return nullptr;
}

clsCollection::Node clsCollection::ItemViaKey(std::int32_t key) const {
  const Node* found = m_list ? m_list->Find(key) : nullptr;
  return found ? *found : nullptr;
}

template <class Matches>
clsCollection::Node clsCollection::First(Matches matches) const {
  const auto found = std::find_if(begin(), end(), [&](const Node& node) { return matches(*node); });
  return found == end() ? nullptr : *found;
}

clsCollection::Node clsCollection::ItemViaKey(std::wstring_view key) const {
  return First([key](const clsCollection& node) { return node.m_szKey == key; });
}

clsCollection::Node clsCollection::ItemViaData(std::int32_t value, int slot) const {
  static constexpr std::int32_t clsCollection::*Fields[] = {
      &clsCollection::m_lData, &clsCollection::m_lData, &clsCollection::m_lData2,
      &clsCollection::m_lData3};
  if (slot < 0 || slot > 3) return nullptr;
  return First([=](const clsCollection& node) { return node.*Fields[slot] == value; });
}

clsCollection::Node clsCollection::ItemViaData(std::wstring_view value, int slot) const {
  static constexpr FieldText clsCollection::*Fields[] = {
      &clsCollection::m_szData, &clsCollection::m_szData, &clsCollection::m_szData2,
      &clsCollection::m_szData3};
  if (slot < 0 || slot > 3) return nullptr;
  return First([=](const clsCollection& node) { return node.*Fields[slot] == value; });
}

std::int32_t clsCollection::Count() const {
  return m_list ? static_cast<std::int32_t>(m_list->nodes.size()) : 0;
}

void clsCollection::Remove(std::int32_t index, bool raiseError) {
  const Node node = Item(index, raiseError);
  if (!node) return;
  auto& nodes = m_list->nodes;
  m_list->Forget(node->m_lKey.m_slot);
  node->m_lKey.m_holder = nullptr;
  nodes.erase(nodes.begin() + (index - 1));
  for (std::size_t slot = static_cast<std::size_t>(index) - 1; slot < nodes.size(); ++slot) {
    nodes[slot]->m_lKey.m_slot = static_cast<std::uint32_t>(slot);
    nodes[slot]->Index = static_cast<std::int32_t>(slot) + 1;
  }
}

void clsCollection::Clear() {
  if (!m_list) return;
  for (const Node& node : m_list->nodes) node->m_lKey.m_holder = nullptr;
  m_list.reset();
}

std::vector<clsCollection::Node>::const_iterator clsCollection::begin() const {
  return m_list ? m_list->nodes.begin() : std::vector<Node>::const_iterator();
}

std::vector<clsCollection::Node>::const_iterator clsCollection::end() const {
  return m_list ? m_list->nodes.end() : std::vector<Node>::const_iterator();
}

namespace {

using Member = std::variant<FieldText clsCollection::*, std::int32_t clsCollection::*,
                            clsCollection::Key clsCollection::*>;

constexpr std::pair<std::wstring_view, Member> SortableMembers[] = {
    {L"m_szKey", &clsCollection::m_szKey},           {L"m_lKey", &clsCollection::m_lKey},
    {L"m_szData", &clsCollection::m_szData},         {L"m_szData2", &clsCollection::m_szData2},
    {L"m_szData3", &clsCollection::m_szData3},       {L"m_lData", &clsCollection::m_lData},
    {L"m_lData2", &clsCollection::m_lData2},         {L"m_lData3", &clsCollection::m_lData3},
    {L"m_szFilename", &clsCollection::m_szFilename}, {L"Index", &clsCollection::Index},
};

Member SortableMember(std::wstring_view name) {
  for (const auto& [candidate, member] : SortableMembers) {
    if (candidate == name) return member;
  }
  throw Error(Error::InvalidArgument, L"Nothing to sort by: " + std::wstring(name),
              L"clsCollection");
}

}  // namespace

// Exchanging each place with every later one of an equal or larger value, as a bubble sort does,
// takes the last of the largest values first and leaves equal values among the rest in their order:
// hence the reverse order of equal values.
std::vector<std::int32_t> clsCollection::Sort_Bubble(std::wstring_view memberName) const {
  const Member member = SortableMember(memberName);
  std::vector<std::int32_t> positions(static_cast<std::size_t>(Count()) + 1);
  std::iota(positions.begin(), positions.end(), 0);
  std::visit(
      [&](auto field) {
        std::sort(positions.begin() + 1, positions.end(), [&](std::int32_t a, std::int32_t b) {
          const auto& left = *m_list->nodes[static_cast<std::size_t>(a) - 1].*field;
          const auto& right = *m_list->nodes[static_cast<std::size_t>(b) - 1].*field;
          if (right < left) return true;
          return !(left < right) && a > b;
        });
      },
      member);
  return positions;
}

}  // namespace orvane
