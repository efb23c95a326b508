#include <nlohmann/json.hpp>
#include <variant>

#include "menudata/DataValues.h"
#include "menudoc/ItemKinds.h"
#include "menudoc/MenuDocument.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::ordered_json;

/// Bits by name, the rest as a number; a plain number when no bit has a name.
Json BitsJson(std::int32_t bits, std::span<const NamedNumber> names) {
  Json list = Json::array();
  for (const NamedNumber& bit : names) {
    if ((bits & bit.number) == 0) continue;
    list.push_back(bit.name);
    bits &= ~bit.number;
  }
  if (list.empty()) return bits;
  if (bits != 0) list.push_back(bits);
  return list;
}

Json TypeJson(std::int32_t type) {
  for (const NamedNumber& candidate : TypeNames) {
    if (candidate.number == type) return candidate.name;
  }
  return type;
}

class Formatter {
 public:
  explicit Formatter(const Definition& definition)
      : m_items(definition.items), m_children(definition.items.size() + 1) {
    for (std::size_t i = 0; i < m_items.size(); ++i) m_children[ParentOf(i)].push_back(i);
  }

  /// The root is the document itself when everything else lies under it.
  Json Document() const {
    Json document;
    const auto& top = m_children[0];
    if (top == std::vector<std::size_t>{0} && m_items[0].data.IsTypeRoot()) {
      document["caption"] = ToUtf8(m_items[0].data.m_szRoot_Caption);
      AddRest(document, 0, 0);
      if (!document.contains("items")) document["items"] = Json::array();
    } else {
      document["items"] = Children(0, 0);
    }
    return document;
  }

 private:
  static std::string Number(std::size_t item) { return "item " + std::to_string(item + 1); }

  /// Index into m_children: 0 for no parent, else the parent's place in the file.
  std::size_t ParentOf(std::size_t item) const {
    const std::int32_t parent = m_items[item].parent;
    if (parent == 0) return 0;
    if (parent < 0 || static_cast<std::size_t>(parent) > item)
      throw DocumentError(Number(item) + ": its parent, item " + std::to_string(parent) +
                          ", does not stand before it");
    const clsOrvaneData& data = m_items[static_cast<std::size_t>(parent) - 1].data;
    if (!data.IsTypeRoot() && !data.IsTypePopupMenu())
      throw DocumentError(Number(item) + ": its parent, item " + std::to_string(parent) +
                          ", is no popup");
    return static_cast<std::size_t>(parent);
  }

  Json Children(std::size_t parent, int depth) const {
    Json items = Json::array();
    for (const std::size_t child : m_children[parent]) {
      if (depth > MaxDepth)
        throw DocumentError(Number(child) + ": is nested deeper than " + std::to_string(MaxDepth) +
                            " popups");
      items.push_back(ItemJson(child, depth));
    }
    return items;
  }

  Json ItemJson(std::size_t item, int depth) const {
    const clsOrvaneData& data = m_items[item].data;
    Json json;
    json["type"] = TypeJson(data.m_lType);
    if (!data.Caption().empty()) json["caption"] = ToUtf8(data.Caption());
    AddRest(json, item, depth + 1);
    return json;
  }

  /// Everything behind type and caption; what is empty or 0 is left out. `depth` is that of the
  /// items inside.
  void AddRest(Json& json, std::size_t item, int depth) const {
    const clsOrvaneData& data = m_items[item].data;
    for (const DataValue& value : DataValuesOf(data.m_lType)) {
      if (json.contains(value.name) || value.name == "caption") continue;
      if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&value.field)) {
        if (data.**number != 0)
          json[std::string(value.name)] = BitsJson(data.**number, BitNamesOf(value.name));
        continue;
      }
      const FieldText& text = data.*std::get<FieldText clsOrvaneData::*>(value.field);
      if (!text.empty()) json[std::string(value.name)] = ToUtf8(text);
    }
    if (data.m_lOptions != 0) json["options"] = BitsJson(data.m_lOptions, OptionNames);
    if (!m_children[item + 1].empty()) json["items"] = Children(item + 1, depth);
  }

  const std::vector<Definition::Item>& m_items;
  std::vector<std::vector<std::size_t>>
      m_children;  // by the parent's place in the file, 0 for none
};

}  // namespace

std::string FormatMenu(const Definition& definition) {
  Json document = Formatter(definition).Document();
  const clsFileHeader& header = definition.header;
  if (header.HeaderValue1 != 0 || header.HeaderValue3 != 0)
    document["header"] = {header.HeaderValue1, header.HeaderValue3};
  return document.dump(2) + "\n";
}

}  // namespace orvane::tool
