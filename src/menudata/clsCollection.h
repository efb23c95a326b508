#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "menudata/FieldText.h"

namespace orvane {

/// What a node can carry: an item record or another node.
class Object {
 public:
  virtual ~Object() = default;
};

/// The general container: an ordered, 1-based list of nodes with text and number keys, data, an
/// attached object and tree links. A node is itself a clsCollection and can hold a list of its own.
/// The list owns its nodes, and a node is in one list at most; the tree links are the caller's and
/// own nothing, so that linked nodes cannot keep each other alive.
class clsCollection : public Object {
 public:
  using Node = std::shared_ptr<clsCollection>;
  using Link = std::weak_ptr<clsCollection>;

  /// The numeric key. Tells the list that holds the node when it changes, because the list keeps
  /// an index by key.
  class Key {
   public:
    Key(std::int32_t value = 0) : m_value(value) {}
    Key(const Key& other) : m_value(other.m_value) {}
    Key& operator=(const Key& other) { return *this = other.m_value; }
    Key& operator=(std::int32_t value);
    operator std::int32_t() const { return m_value; }

   private:
    friend class clsCollection;
    std::int32_t m_value;
    std::uint32_t m_slot = 0;  // 0-based place in the holder's list
    clsCollection* m_holder = nullptr;
  };

  FieldText m_szKey;
  Key m_lKey;
  FieldText m_szData;
  FieldText m_szData2;
  FieldText m_szData3;
  std::int32_t m_lData = 0;
  std::int32_t m_lData2 = 0;
  std::int32_t m_lData3 = 0;
  std::shared_ptr<Object> m_oData;
  Link m_SiblingLeft;
  Link m_SiblingRight;
  Link m_Parent;
  Link m_Child;
  FieldText m_szFilename;
  std::int32_t Index = 0;

  clsCollection();
  ~clsCollection() override;
  clsCollection(const clsCollection&) = delete;
  clsCollection& operator=(const clsCollection&) = delete;

  /// Appends a new node; the remaining fields are set on the node it returns.
  Node Add(FieldText szKey = {}, std::int32_t lKey = 0, std::shared_ptr<Object> oData = {},
           FieldText szData = {}, std::int32_t lData = 0);
  /// Appends a node that is in no list.
  Node Append(Node node);
  /// Appends a copy of `source`.
  Node AddEx(const clsCollection& source);
  /// A copy of this node in no list; its own list is not copied.
  Node DUP() const;
  /// Takes over every field of `source` but Index and the list.
  void FillFrom(const clsCollection& source);
  /// Exchanges what FillFrom copies; both nodes keep their places.
  static void Swap(clsCollection& first, clsCollection& second);

  /// The node at a 1-based position. Beyond the count: Error 5 from "clsCollection" with
  /// raiseError, else none. Below 1: Error 9 (out of range).
  Node Item(std::int32_t index, bool raiseError = true) const;
  /// The first node with that key, or none. By number it takes no longer in a long list.
  Node ItemViaKey(std::int32_t key) const;
  Node ItemViaKey(std::wstring_view key) const;
  /// The first node whose data of slot 1 to 3 (0 means 1) is that, or none.
  Node ItemViaData(std::int32_t value, int slot = 0) const;
  Node ItemViaData(std::wstring_view value, int slot = 0) const;

  std::int32_t Count() const;
  /// Error rules as for Item.
  void Remove(std::int32_t index, bool raiseError = true);
  void Clear();

  /// Positions 1 to Count in slots 1 to Count (slot 0 holds 0), by the named text or number member,
  /// the largest value first, nodes of equal value in reverse list order. Error 5 for any other
  /// name.
  std::vector<std::int32_t> Sort_Bubble(std::wstring_view memberName) const;

  // The nodes in list order.
  std::vector<Node>::const_iterator begin() const;
  std::vector<Node>::const_iterator end() const;

 private:
  struct List;

  List& OwnList();
  template <class Matches>
  Node First(Matches matches) const;

  std::unique_ptr<List> m_list;  // made with the first node
};

}  // namespace orvane
