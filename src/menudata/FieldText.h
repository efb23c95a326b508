#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "menudata/Arena.h"

namespace orvane {

/// A text field of a record or node: one pointer while it is empty, one block of memory otherwise.
/// A record has 22 of them, two of which are set as a rule, and a menu has thousands of records:
/// with std::wstring most of the time that a large menu takes goes into memory that stays empty.
/// Otherwise it is a wide text of any length and content; it reads as one and is set from one.
class FieldText {
 public:
  FieldText() = default;
  template <class Source>
  requires std::convertible_to<const Source&, std::wstring_view> FieldText(const Source& source)
      : m_block(MakeBlock(source)) {}
  /// A text of that length, whose characters `write` puts at the place it is handed.
  template <std::invocable<wchar_t*> Write>
  FieldText(std::size_t length, Write write) : m_block(NewBlock(length)) {
    if (m_block) write(Characters(m_block));
  }
  /// The same in memory of the arena, which has to outlive the text where it was made; what is
  /// copied or moved from it has memory of its own.
  template <std::invocable<wchar_t*> Write>
  FieldText(std::size_t length, Write write, const Arena& arena) {
    if (length == 0) return;
    m_block = new (arena.Take(BytesOf(length))) Block{length, true};
    write(Characters(m_block));
  }
  FieldText(const FieldText& other) : m_block(MakeBlock(other)) {}
  FieldText(FieldText&& other)
      : m_block(other.IsBorrowed() ? MakeBlock(other) : std::exchange(other.m_block, nullptr)) {}
  FieldText& operator=(FieldText other) noexcept {
    std::swap(m_block, other.m_block);
    return *this;
  }
  ~FieldText() {
    if (m_block && !m_block->borrowed)
      ::operator delete(m_block);  // a call for each empty one is dear
  }

  operator std::wstring_view() const {
    return m_block ? std::wstring_view(Characters(m_block), m_block->length) : std::wstring_view();
  }
  operator std::wstring() const { return std::wstring(std::wstring_view(*this)); }
  bool empty() const { return !m_block; }
  std::size_t size() const { return m_block ? m_block->length : 0; }

  template <class Other>
  requires std::convertible_to<const Other&, std::wstring_view>
  friend bool operator==(const FieldText& left, const Other& right) {
    return std::wstring_view(left) == std::wstring_view(right);
  }
  friend auto operator<=>(const FieldText& left, const FieldText& right) {
    return std::wstring_view(left) <=> std::wstring_view(right);
  }
  friend std::wstring operator+(const FieldText& left, std::wstring_view right) {
    return std::wstring(left).append(right);
  }
  friend std::wstring operator+(std::wstring_view left, const FieldText& right) {
    return std::wstring(left).append(right);
  }

 private:
  struct Block {
    std::size_t length;
    bool borrowed;  // lies in an arena; the characters follow
  };

  static constexpr std::size_t BytesOf(std::size_t length) {
    return sizeof(Block) + length * sizeof(wchar_t);
  }
  bool IsBorrowed() const { return m_block && m_block->borrowed; }

  static wchar_t* Characters(Block* block) { return reinterpret_cast<wchar_t*>(block + 1); }
  static Block* NewBlock(std::size_t length);  // null for 0
  static Block* MakeBlock(std::wstring_view text);

  Block* m_block = nullptr;
};

}  // namespace orvane
