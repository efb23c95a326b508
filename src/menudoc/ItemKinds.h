#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "menudata/DataValues.h"

namespace orvane {

/// The kinds of items that a menu document holds, and their fields: the one table that parser,
/// formatter, checks, schema and designer share. Its texts are UTF-8.

/// A bit of a number and its name in a document.
struct NamedBit {
  std::string_view name;
  std::int32_t bit;
  std::string_view meaning;  // one sentence
};

/// What a field holds, and so how it is edited and checked.
enum class FieldUse {
  Caption,
  Folder,    // path of a folder, or a special folder's number
  File,      // path of a file
  Program,   // path or name of a program or document
  Template,  // parameters with tokens for the selection
  Affix,     // text around each name, with backslash escapes
  Filter,    // patterns with commas between them
  Script,    // keystrokes
  Bits
};

/// Whether names between percent signs are replaced in it.
constexpr bool IsPath(FieldUse use) {
  return use == FieldUse::Folder || use == FieldUse::File || use == FieldUse::Program;
}

struct ItemField {
  std::string_view name;
  DataField value;
  FieldUse use;
  std::string_view meaning;          // one sentence
  std::span<const NamedBit> bits{};  // of FieldUse::Bits; a number's other bits have no names
};

struct ItemKind {
  std::string_view name;
  std::int32_t type;  // m_lType
  std::string_view meaning;
  bool holdsItems;
  std::span<const ItemField> fields;  // in a document's order; the options are not among them
};

std::span<const ItemKind> ItemKinds();
/// The option bits, which every kind has.
const ItemField& OptionsField();

/// None when there is no such kind.
const ItemKind* FindKind(std::int32_t type);
const ItemKind* FindKind(std::string_view name);
/// The field of that name, the options included; none when the type has no such field.
const ItemField* FindField(std::int32_t type, std::string_view name);
const ItemField* FindField(std::int32_t type, const DataField& value);

}  // namespace orvane
