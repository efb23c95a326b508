#include "menudata/clsCollection.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>
#include <vector>

#include "support/Error.h"

namespace orvane {
namespace {

template <class Action>
std::int32_t ErrorOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(clsCollection, NumbersItsNodesFromOneAndKeepsThemNumbered) {
  clsCollection list;
  const auto a = list.Add(L"a");
  const auto b = list.Add(L"b");
  const auto c = list.Add(L"c");
  EXPECT_EQ((std::vector{a->Index, b->Index, c->Index}), (std::vector{1, 2, 3}));
  list.Remove(2);
  EXPECT_EQ(list.Count(), 2);
  EXPECT_EQ((std::vector{a->Index, c->Index}), (std::vector{1, 2}));
  EXPECT_EQ(list.Item(2), c);
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list.begin(), list.end());
  EXPECT_EQ(list.Add()->Index, 1);
}

TEST(clsCollection, PositionsOutsideTheList) {
  clsCollection list;
  for (int i = 0; i < 3; ++i) list.Add();
  try {
    list.Item(4, true);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 5);
    EXPECT_EQ(error.Source(), L"clsCollection");
  }
  EXPECT_EQ(list.Item(4, false), nullptr);
  EXPECT_EQ(ErrorOf([&] { list.Remove(4); }), 5);
  EXPECT_EQ(ErrorOf([&] { list.Remove(4, false); }), 0);
  EXPECT_EQ(ErrorOf([&] { list.Item(0, false); }), 9);
  EXPECT_EQ(ErrorOf([&] { list.Remove(-1, false); }), 9);
  EXPECT_EQ(list.Count(), 3);
}

TEST(clsCollection, LooksUpNumbersAndTextsApart) {
  clsCollection list;
  const auto text = list.Add(L"7");
  const auto number = list.Add(L"abc", 7);
  list.Add(L"abc", 7);
  EXPECT_EQ(list.ItemViaKey(7), number);
  EXPECT_EQ(list.ItemViaKey(L"7"), text);
  EXPECT_EQ(list.ItemViaKey(L"abc"), number);
  EXPECT_EQ(list.ItemViaKey(L"ABC"), nullptr);
  EXPECT_EQ(list.ItemViaKey(8), nullptr);
}

TEST(clsCollection, LooksUpDataBySlot) {
  clsCollection list;
  const auto node = list.Add(L"", 0, nullptr, L"one", 1);
  node->m_szData2 = L"two";
  node->m_lData2 = 2;
  node->m_szData3 = L"three";
  node->m_lData3 = 3;
  const struct {
    std::int32_t number;
    const wchar_t* text;
    int slot;
    bool found;
  } cases[] = {{1, L"one", 0, true},    {1, L"one", 1, true},     {2, L"two", 2, true},
               {3, L"three", 3, true},  {2, L"two", 1, false},    {1, L"one", 2, false},
               {3, L"three", 4, false}, {3, L"three", -1, false}, {9, L"One", 0, false}};
  for (const auto& row : cases) {
    EXPECT_EQ(list.ItemViaData(row.number, row.slot) == node, row.found) << row.slot;
    EXPECT_EQ(list.ItemViaData(row.text, row.slot) == node, row.found) << row.slot;
  }
}

void ExpectSameFields(const clsCollection& a, const clsCollection& b) {
  EXPECT_EQ(a.m_szKey, b.m_szKey);
  EXPECT_EQ(a.m_lKey, b.m_lKey);
  EXPECT_EQ(a.m_szData, b.m_szData);
  EXPECT_EQ(a.m_szData2, b.m_szData2);
  EXPECT_EQ(a.m_szData3, b.m_szData3);
  EXPECT_EQ(a.m_lData, b.m_lData);
  EXPECT_EQ(a.m_lData2, b.m_lData2);
  EXPECT_EQ(a.m_lData3, b.m_lData3);
  EXPECT_EQ(a.m_oData, b.m_oData);
  EXPECT_EQ(a.m_SiblingLeft.lock(), b.m_SiblingLeft.lock());
  EXPECT_EQ(a.m_SiblingRight.lock(), b.m_SiblingRight.lock());
  EXPECT_EQ(a.m_Parent.lock(), b.m_Parent.lock());
  EXPECT_EQ(a.m_Child.lock(), b.m_Child.lock());
  EXPECT_EQ(a.m_szFilename, b.m_szFilename);
}

clsCollection::Node FullNode(clsCollection& list, std::int32_t seed) {
  const std::wstring text = std::to_wstring(seed);
  const auto node =
      list.Add(L"key" + text, seed, std::make_shared<clsCollection>(), L"1-" + text, seed + 1);
  node->m_szData2 = L"2-" + text;
  node->m_szData3 = L"3-" + text;
  node->m_lData2 = seed + 2;
  node->m_lData3 = seed + 3;
  node->m_szFilename = L"file" + text;
  node->m_SiblingLeft = node->m_Child = list.Item(1);
  node->m_SiblingRight = node->m_Parent = node;
  return node;
}

TEST(clsCollection, CopiesEveryFieldOfANodeButNotItsList) {
  clsCollection list;
  const auto node = FullNode(list, 10);
  node->Add(L"inner");
  const auto copy = node->DUP();
  ExpectSameFields(*copy, *node);
  EXPECT_EQ(copy->Index, node->Index);
  EXPECT_EQ(copy->Count(), 0);
  EXPECT_EQ(list.Count(), 1);
  const auto added = list.AddEx(*node);
  ExpectSameFields(*added, *node);
  EXPECT_EQ(added->Index, 2);
}

TEST(clsCollection, SwapExchangesContentsAndKeepsPlaces) {
  clsCollection list;
  const auto a = FullNode(list, 10);
  const auto b = FullNode(list, 20);
  const auto wasA = a->DUP();
  const auto wasB = b->DUP();
  EXPECT_EQ(list.ItemViaKey(10), a);
  clsCollection::Swap(*a, *b);
  ExpectSameFields(*a, *wasB);
  ExpectSameFields(*b, *wasA);
  EXPECT_EQ((std::vector{a->Index, b->Index}), (std::vector{1, 2}));
  EXPECT_EQ(list.ItemViaKey(10), b);
  EXPECT_EQ(list.ItemViaKey(20), a);
}

TEST(clsCollection, NodesOutliveTheirList) {
  clsCollection::Node node;
  {
    clsCollection list;
    node = list.Add(L"", 1);
    EXPECT_EQ(list.ItemViaKey(1), node);
  }
  node->m_lKey = 2;
  EXPECT_EQ(node->m_lKey, 2);
}

// Whatever happens to the list between two lookups, the index answers as a walk over the list does.
TEST(clsCollection, FindsTheFirstNodeWithAKeyAfterAnyHistory) {
  std::mt19937 random(20260711);
  const auto below = [&](std::int32_t limit) {
    return std::uniform_int_distribution<std::int32_t>(0, limit - 1)(random);
  };
  for (int round = 0; round < 200; ++round) {
    clsCollection list;
    for (int step = 0; step < 120; ++step) {
      const std::int32_t key = below(8);
      const std::int32_t count = list.Count();
      switch (below(round % 3 == 0 ? 12 : 5)) {
        case 0:
        case 1:
          list.Add(L"", key);
          break;
        case 2:
          if (count > 0) list.Item(count)->m_lKey = key;  // as menu construction does
          break;
        case 3:
          if (count > 0) list.Item(1 + below(count))->m_lKey = key;
          break;
        case 5:
          if (count > 0) list.Remove(1 + below(count));
          break;
        case 6:
          if (below(10) == 0) list.Clear();
          break;
        default:
          clsCollection::Node expected;
          for (const auto& node : list) {
            if (node->m_lKey == key) {
              expected = node;
              break;
            }
          }
          ASSERT_EQ(list.ItemViaKey(key), expected) << "round " << round << " step " << step;
      }
    }
  }
}

TEST(clsCollection, LookupsDuringConstructionAreNotQuadratic) {
  const auto start = std::chrono::steady_clock::now();
  clsCollection list;
  for (std::int32_t i = 0; i < 50'000; ++i) {
    const auto node = list.Add();
    EXPECT_EQ(list.ItemViaKey(i - 1), i == 0 ? nullptr : list.Item(i));
    node->m_lKey = i;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

/// The order that the exchanges themselves give.
template <class Value>
std::vector<std::int32_t> ExchangeSort(const std::vector<Value>& values) {
  const std::size_t n = values.size();
  std::vector<std::int32_t> p(n + 1);
  for (std::size_t i = 1; i <= n; ++i) p[i] = static_cast<std::int32_t>(i);
  const auto value = [&](std::size_t i) { return values[static_cast<std::size_t>(p[i]) - 1]; };
  for (std::size_t i = 1; i < n; ++i) {
    for (std::size_t j = i + 1; j <= n; ++j) {
      if (value(j) >= value(i)) std::swap(p[i], p[j]);
    }
  }
  return p;
}

TEST(clsCollection, SortsLargestFirst) {
  clsCollection list;
  for (const wchar_t* key : {L"b", L"a", L"c"}) list.Add(key);
  EXPECT_EQ(list.Sort_Bubble(L"m_szKey"), (std::vector{0, 3, 1, 2}));
  EXPECT_EQ(clsCollection().Sort_Bubble(L"m_szKey"), (std::vector{0}));
  for (const wchar_t* name : {L"m_oData", L"m_Parent", L"m_szkey", L"", L"Count"}) {
    EXPECT_EQ(ErrorOf([&] { list.Sort_Bubble(name); }), 5) << name;
  }
}

TEST(clsCollection, SortsInTheOrderOfTheExchangesTiesIncluded) {
  std::mt19937 random(4711);
  for (int round = 0; round < 400; ++round) {
    const auto size = std::uniform_int_distribution<std::size_t>(0, 60)(random);
    const std::int32_t spread = std::uniform_int_distribution<std::int32_t>(1, 20)(random);
    std::uniform_int_distribution<std::int32_t> value(-spread, spread);
    clsCollection list;
    std::vector<std::wstring> texts;
    std::vector<std::int32_t> numbers;
    for (std::size_t i = 0; i < size; ++i) {
      numbers.push_back(value(random));
      texts.push_back((value(random) < 0 ? L"\t" : L"") + std::to_wstring(value(random)));
      list.Add(texts.back(), numbers.back(), nullptr, texts.back(), numbers.back());
    }
    for (const wchar_t* name : {L"m_szKey", L"m_szData"})
      ASSERT_EQ(list.Sort_Bubble(name), ExchangeSort(texts)) << name << " in round " << round;
    for (const wchar_t* name : {L"m_lKey", L"m_lData"})
      ASSERT_EQ(list.Sort_Bubble(name), ExchangeSort(numbers)) << name << " in round " << round;
  }
}

}  // namespace
}  // namespace orvane
