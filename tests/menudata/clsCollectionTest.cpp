#include "menudata/clsCollection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <numeric>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "menudata/World.h"

namespace orvane {
namespace {

TEST(clsCollection, KeepsItsNodesNumberedFromOne) {
  clsCollection list;
  const auto a = list.Add(L"a");
  list.Add(L"b");
  const auto c = list.Add(L"c");
  EXPECT_EQ(c->Index, 3);
  list.Remove(2);
  EXPECT_EQ((std::vector{a->Index, c->Index, list.Count()}), (std::vector{1, 2, 2}));
  EXPECT_EQ(list.Item(2), c);

  EXPECT_EQ(test::ErrorOf([&] { list.Item(3, true); }), 5);
  EXPECT_EQ(list.Item(3, false), nullptr);
  EXPECT_EQ(test::ErrorOf([&] { list.Remove(3); }), 5);
  EXPECT_EQ(test::ErrorOf([&] { list.Remove(3, false); }), 0);
  EXPECT_EQ(test::ErrorOf([&] { list.Item(0, false); }), 9);
  list.Clear();
  EXPECT_EQ(list.begin(), list.end());
  EXPECT_EQ(list.Add()->Index, 1);
}

TEST(clsCollection, LooksUpTheFirstByKeyOrData) {
  clsCollection list;
  const auto text = list.Add(L"7");
  const auto number = list.Add(L"abc", 7, nullptr, L"one", 1);
  number->m_szData2 = L"two";
  number->m_lData3 = 3;
  list.AddEx(*number);
  EXPECT_EQ(list.ItemViaKey(7), number);
  EXPECT_EQ(list.ItemViaKey(L"7"), text);
  EXPECT_EQ(list.ItemViaKey(L"abc"), number);
  EXPECT_EQ(list.ItemViaKey(L"ABC"), nullptr);
  EXPECT_EQ(list.ItemViaData(1), number);
  EXPECT_EQ(list.ItemViaData(L"one", 1), number);
  EXPECT_EQ(list.ItemViaData(L"two", 2), number);
  EXPECT_EQ(list.ItemViaData(L"two", 3), nullptr);
  EXPECT_EQ(list.ItemViaData(3, 3), number);
  EXPECT_EQ(list.ItemViaData(3, 4), nullptr);
  EXPECT_EQ(list.ItemViaData(1, -1), nullptr);
}

auto Fields(const clsCollection& node) {
  return std::tuple(node.m_szKey, std::int32_t{node.m_lKey}, node.m_szData, node.m_szData2,
                    node.m_szData3, node.m_lData, node.m_lData2, node.m_lData3, node.m_oData,
                    node.m_SiblingLeft.lock(), node.m_SiblingRight.lock(), node.m_Parent.lock(),
                    node.m_Child.lock(), node.m_szFilename);
}

TEST(clsCollection, CopiesAndExchangesEveryFieldButNotPlaceAndList) {
  clsCollection list;
  const auto a = list.Add(L"key", 10, std::make_shared<clsCollection>(), L"1", 1);
  a->m_szData2 = a->m_szData3 = a->m_szFilename = L"text";
  a->m_lData2 = a->m_lData3 = 2;
  a->m_SiblingLeft = a->m_SiblingRight = a->m_Parent = a->m_Child = a;
  a->Add(L"inner");
  const auto b = list.Add(L"other", 20);
  const auto wasA = list.AddEx(*a);
  const auto wasB = b->DUP();
  EXPECT_TRUE(Fields(*wasA) == Fields(*a));
  EXPECT_EQ((std::vector{wasB->Index, wasA->Index, wasA->Count()}), (std::vector{2, 3, 0}));
  EXPECT_EQ(list.ItemViaKey(20), b);

  clsCollection::Swap(*a, *b);
  EXPECT_TRUE(Fields(*a) == Fields(*wasB));
  EXPECT_TRUE(Fields(*b) == Fields(*wasA));
  EXPECT_EQ((std::vector{a->Index, b->Index, a->Count()}), (std::vector{1, 2, 1}));
  EXPECT_EQ(list.ItemViaKey(20), a);
  EXPECT_EQ(list.ItemViaKey(10), b);
}

TEST(clsCollection, NodesOutliveTheirList) {
  auto list = std::make_unique<clsCollection>();
  const auto node = list->Add(L"", 1);
  EXPECT_EQ(list->ItemViaKey(1), node);
  list.reset();
  node->m_lKey = 2;
}

// Whatever happens to the list between two lookups, the index answers as a walk over the list does.
TEST(clsCollection, FindsTheFirstNodeWithAKeyAfterAnyHistory) {
  std::mt19937 random(20260711);
  const auto below = [&](std::int32_t limit) {
    return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(limit));
  };
  for (int round = 0; round < 200; ++round) {
    clsCollection list;
    for (int step = 0; step < 120; ++step) {
      const std::int32_t key = below(8);
      const std::int32_t count = list.Count();
      const std::int32_t action = below(round % 3 == 0 ? 12 : 5);
      if (action < 2)
        list.Add(L"", key);
      else if (action == 2 && count > 0)
        list.Item(count)->m_lKey = key;  // as menu construction does
      else if (action == 3 && count > 0)
        list.Item(1 + below(count))->m_lKey = key;
      else if (action == 5 && count > 0)
        list.Remove(1 + below(count));
      else if (action == 6 && below(10) == 0)
        list.Clear();
      const auto first = std::find_if(list.begin(), list.end(),
                                      [&](const auto& node) { return node->m_lKey == key; });
      if (action != 4 && action < 7) continue;
      ASSERT_EQ(list.ItemViaKey(key), first == list.end() ? nullptr : *first) << round;
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
std::vector<std::int32_t> ExchangeSort(std::vector<Value> values) {
  std::vector<std::int32_t> order(values.size() + 1);
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t i = 0; i < values.size(); ++i) {
    for (std::size_t j = i + 1; j < values.size(); ++j) {
      if (values[j] < values[i]) continue;
      std::swap(values[i], values[j]);
      std::swap(order[i + 1], order[j + 1]);
    }
  }
  return order;
}

TEST(clsCollection, SortsInTheOrderOfTheExchangesTiesIncluded) {
  std::mt19937 random(4711);
  for (std::uint32_t round = 0; round < 400; ++round) {
    clsCollection list;
    std::vector<std::wstring> texts;
    std::vector<std::int32_t> numbers;
    for (auto size = random() % 60; size > 0; --size) {
      numbers.push_back(static_cast<std::int32_t>(random() % (1 + round % 20)) - 5);
      texts.push_back(std::to_wstring(random() % (1 + round % 30)));
      list.Add(texts.back(), numbers.back());
    }
    ASSERT_EQ(list.Sort_Bubble(L"m_szKey"), ExchangeSort(texts)) << "round " << round;
    ASSERT_EQ(list.Sort_Bubble(L"m_lKey"), ExchangeSort(numbers)) << "round " << round;
  }
  for (const wchar_t* name : {L"m_oData", L"m_szkey", L""})
    EXPECT_EQ(test::ErrorOf([&] { clsCollection().Sort_Bubble(name); }), 5) << name;
}

}  // namespace
}  // namespace orvane
