#include <nlohmann/json.hpp>
#include <variant>

#include "menudoc/ItemKinds.h"
#include "menudoc/MenuTree.h"
#include "menudoc/NamesInText.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using Json = nlohmann::ordered_json;

/// Bits by name, the rest as a number; a plain number when no bit has a name.
Json BitsJson(std::int32_t bits, std::span<const NamedBit> names) {
  Json list = Json::array();
  for (const NamedBit& name : names) {
    if ((bits & name.bit) == 0) continue;
    list.push_back(name.name);
    bits &= ~name.bit;
  }
  if (list.empty()) return bits;
  if (bits != 0) list.push_back(bits);
  return list;
}

Json TypeJson(std::int32_t type) {
  const ItemKind* kind = FindKind(type);
  return kind ? Json(kind->name) : Json(type);
}

/// What is empty or 0 is left out.
void AddField(Json& json, const ItemField& field, const clsOrvaneData& data) {
  if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&field.value)) {
    if (data.**number != 0) json[std::string(field.name)] = BitsJson(data.**number, field.bits);
    return;
  }
  const FieldText& text = data.*std::get<FieldText clsOrvaneData::*>(field.value);
  if (text.empty()) return;
  json[std::string(field.name)] =
      ToUtf8(IsPath(field.use) ? EscapeNames(text) : std::wstring(text));
}

void AddFields(Json& json, const clsOrvaneData& data) {
  if (const ItemKind* kind = FindKind(data.m_lType)) {
    for (const ItemField& field : kind->fields) AddField(json, field, data);
  }
  AddField(json, OptionsField(), data);
}

/// Takes the items in turn; each takes those below it.
class Formatter {
 public:
  explicit Formatter(const MenuDocument& menu) : m_items(menu.items) {}

  Json Document(bool hasRoot) {
    Json document;
    if (hasRoot) {
      document["caption"] = ToUtf8(m_items[0].data.m_szRoot_Caption);
      AddFields(document, m_items[m_next++].data);
    }
    document["items"] = Children(hasRoot ? 1 : 0);
    return document;
  }

  /// The items of one parent, which stands there as in a file.
  Json Children(std::int32_t parent) {
    Json items = Json::array();
    while (m_next < m_items.size() && m_items[m_next].parent == parent) items.push_back(Item());
    return items;
  }

 private:
  Json Item() {
    const clsOrvaneData& data = m_items[m_next++].data;
    const auto self = static_cast<std::int32_t>(m_next);
    Json json;
    json["type"] = TypeJson(data.m_lType);
    AddFields(json, data);
    if (Json items = Children(self); !items.empty()) json["items"] = std::move(items);
    return json;
  }

  const std::vector<Definition::Item>& m_items;
  std::size_t m_next = 0;
};

}  // namespace

std::string FormatMenu(const MenuDocument& menu) {
  Json document = Formatter(menu).Document(HasRoot(menu));
  const clsFileHeader& header = menu.header;
  if (header.HeaderValue1 != 0 || header.HeaderValue3 != 0)
    document["header"] = {header.HeaderValue1, header.HeaderValue3};
  return document.dump(2) + "\n";
}

std::string FormatItems(const MenuDocument& menu) {
  return Formatter(menu).Children(0).dump(2) + "\n";
}

}  // namespace orvane
