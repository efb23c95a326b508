#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

#include "menudoc/ItemKinds.h"
#include "menudoc/JsonText.h"
#include "menudoc/MenuDocument.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using Json = nlohmann::json;

constexpr std::int32_t UnknownType = -1;

template <class Rows>
std::string Names(const Rows& rows) {
  std::string names;
  for (const auto& row : rows) names.append(names.empty() ? "" : ", ").append(row.name);
  return names;
}

bool IsNumber(const Json& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return value.is_number_unsigned()
             ? value.get<std::uint64_t>() <= std::uint64_t{Limits::max()}
             : value.is_number_integer() && value.get<std::int64_t>() >= Limits::min();
}

class Parser {
 public:
  ParsedMenu Document(std::string_view text) {
    const Json document = Read(text);
    if (!m_failed) AddDocument(document);
    return std::move(m_result);
  }

  ParsedMenu Items(std::string_view text) {
    const Json items = Read(text);
    if (m_failed) return std::move(m_result);
    if (items.is_object())
      AddItem(items, 0, "", 0);
    else
      AddItems(items, 0, "", 0);
    return std::move(m_result);
  }

 private:
  Json Read(std::string_view text) {
    JsonText json = ReadJson(text);
    m_failed = !json.error.empty();
    if (m_failed) Report("", json.error, "A document is JSON in UTF-8; comments are allowed.");
    for (const std::string& place : json.twice)
      Report(place, "stands there twice", "Keep one of the two.");
    return std::move(json.value);
  }

  void Report(std::string place, std::string text, std::string remedy) {
    m_result.findings.push_back(
        {.place = std::move(place), .text = std::move(text), .remedy = std::move(remedy)});
  }

  void AddDocument(const Json& document) {
    if (!document.is_object()) return Report("", "is no object", "Put it in { and }.");
    if (const auto header = document.find("header"); header != document.end()) ReadHeader(*header);
    if (document.contains("caption"))
      AddItemOfType(document, clsOrvaneData::TypeRoot, 0, "", 0);
    else
      AddRootless(document);
  }

  void AddRootless(const Json& document) {
    for (const auto& [key, value] : document.items()) {
      if (key == "items")
        AddItems(value, 0, "/items", 0);
      else if (!IsDocumentKey(key))
        Report(MemberPlace("", key), "is not known in a document without a caption",
               "Use items and header only, or give the document a caption.");
    }
  }

  static bool IsDocumentKey(std::string_view key) { return key == "$schema" || key == "header"; }

  void ReadHeader(const Json& value) {
    if (!value.is_array() || value.size() != 2)
      return Report("/header", "is no list of two numbers",
                    "Give the first and the third number of the file's header, or leave it out.");
    clsFileHeader& header = m_result.menu.header;
    header.HeaderValue1 = NumberOf(value[0], {}, "/header/0");
    header.HeaderValue3 = NumberOf(value[1], {}, "/header/1");
  }

  void AddItems(const Json& items, std::int32_t parent, const std::string& place, int depth) {
    if (!items.is_array()) return Report(place, "is no list", "Put the items in [ and ].");
    for (std::size_t i = 0; i < items.size(); ++i)
      AddItem(items[i], parent, ElementPlace(place, i), depth);
  }

  void AddItem(const Json& item, std::int32_t parent, const std::string& place, int depth) {
    if (!item.is_object()) return Report(place, "is no object", "Put the item in { and }.");
    if (depth > MaxDepth)
      return Report(place, "lies in more than " + std::to_string(MaxDepth) + " popups",
                    "Move it further up.");
    AddItemOfType(item, TypeOf(item, place), parent, place, depth);
  }

  std::int32_t TypeOf(const Json& item, const std::string& place) {
    const auto type = item.find("type");
    if (type != item.end() && IsNumber(*type)) return type->get<std::int32_t>();
    if (type == item.end()) {
      Report(place, "has no type", "Use one of " + Names(ItemKinds()) + ".");
      return UnknownType;
    }
    const ItemKind* kind = type->is_string()
                               ? FindKind(std::string_view(type->get_ref<const std::string&>()))
                               : nullptr;
    if (!kind)
      Report(place + "/type", type->dump() + " is no type",
             "Use one of " + Names(ItemKinds()) + ".");
    return kind ? kind->type : UnknownType;
  }

  void AddItemOfType(const Json& json, std::int32_t type, std::int32_t parent,
                     const std::string& place, int depth) {
    const auto children = json.find("items");
    auto& items = m_result.menu.items;
    items.emplace_back().parent = parent;
    m_result.places.push_back(place);
    ReadFields(json, type, items.back().data, place);
    const auto self = static_cast<std::int32_t>(items.size());
    if (children != json.end())
      AddItems(*children, self, place + "/items", place.empty() ? 0 : depth + 1);
  }

  void ReadFields(const Json& json, std::int32_t type, clsOrvaneData& data,
                  const std::string& place) {
    data.m_lType = type;
    for (const auto& [key, value] : json.items()) {
      if (key == "items" || (place.empty() && IsDocumentKey(key)) ||
          (!place.empty() && key == "type"))
        continue;
      if (const ItemField* field = FindField(type, std::string_view(key)))
        ReadField(value, *field, data, place + "/" + key);
      else if (type != UnknownType)
        Report(MemberPlace(place, key), "is not known for this type of item", KnownFields(type));
    }
  }

  static std::string KnownFields(std::int32_t type) {
    const ItemKind* kind = FindKind(type);
    if (!kind || kind->fields.empty()) return "Such an item has options only.";
    return "Such an item has " + Names(kind->fields) + ", options" +
           (kind->holdsItems ? ", items." : ".");
  }

  void ReadField(const Json& json, const ItemField& field, clsOrvaneData& data,
                 const std::string& place) {
    if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&field.value))
      data.** number = BitsOf(json, field.bits, place);
    else if (json.is_string())
      data.*std::get<FieldText clsOrvaneData::*>(field.value) =
          FromUtf8(json.get_ref<const std::string&>()).value();  // the reader has checked it
    else
      Report(place, "is no text", "Put it in double quotes.");
  }

  /// Bits are a list of names and numbers, or a single one.
  std::int32_t BitsOf(const Json& value, std::span<const NamedBit> names,
                      const std::string& place) {
    if (!value.is_array()) return NumberOf(value, names, place);
    std::int32_t bits = 0;
    for (std::size_t i = 0; i < value.size(); ++i)
      bits |= NumberOf(value[i], names, ElementPlace(place, i));
    return bits;
  }

  std::int32_t NumberOf(const Json& value, std::span<const NamedBit> names,
                        const std::string& place) {
    if (IsNumber(value)) return value.get<std::int32_t>();
    const auto bit = std::ranges::find_if(names, [&](const NamedBit& name) {
      return value.is_string() && value.get_ref<const std::string&>() == name.name;
    });
    if (bit != names.end()) return bit->bit;
    const std::string number = "a whole number of 32 bits";
    Report(place, names.empty() ? "is no number" : "is neither a name nor a number",
           "Use " + (names.empty() ? "" : "one of " + Names(names) + ", or ") + number + ".");
    return 0;
  }

  ParsedMenu m_result;
  bool m_failed = false;
};

}  // namespace

ParsedMenu ParseMenu(std::string_view text) {
  return Parser().Document(text);
}

ParsedMenu ParseItems(std::string_view text) {
  return Parser().Items(text);
}

}  // namespace orvane
