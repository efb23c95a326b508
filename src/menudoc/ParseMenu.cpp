#include <limits>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>
#include <variant>

#include "menudata/DataValues.h"
#include "menudoc/ItemKinds.h"
#include "menudoc/MenuDocument.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

[[noreturn]] void Fail(const std::string& place, const std::string& message) {
  throw DocumentError((place.empty() ? "the document" : place) + ": " + message);
}

std::string Names(std::span<const NamedNumber> numbers) {
  std::string names;
  for (const NamedNumber& number : numbers) {
    if (!names.empty()) names += ", ";
    names += number.name;
  }
  return names;
}

/// The number that a name stands for, or that stands there itself.
std::int32_t NumberOf(const Json& value, std::span<const NamedNumber> names,
                      const std::string& place) {
  if (value.is_string()) {
    for (const NamedNumber& number : names) {
      if (value == number.name) return number.number;
    }
    Fail(place, value.dump() + " is none of " + Names(names));
  }
  using Limits = std::numeric_limits<std::int32_t>;
  const bool fits = value.is_number_unsigned()
                        ? value.get<std::uint64_t>() <= std::uint64_t{Limits::max()}
                        : value.is_number_integer() && value.get<std::int64_t>() >= Limits::min();
  if (!fits)
    Fail(place, "must be a 32-bit number" + (names.empty() ? "" : " or a name: " + Names(names)));
  return value.get<std::int32_t>();
}

/// A number, or a list of bits by name or number.
std::int32_t BitsOf(const Json& value, std::span<const NamedNumber> names,
                    const std::string& place) {
  if (!value.is_array()) return NumberOf(value, names, place);
  std::int32_t bits = 0;
  for (std::size_t i = 0; i < value.size(); ++i)
    bits |= NumberOf(value[i], names, place + "/" + std::to_string(i));
  return bits;
}

std::wstring TextOf(const Json& value, const std::string& place) {
  if (!value.is_string()) Fail(place, "must be a text");
  return FromUtf8(value.get_ref<const std::string&>()).value();  // the parser has checked it
}

const DataValue* FindValue(std::int32_t type, std::string_view name) {
  for (const DataValue& value : DataValuesOf(type)) {
    if (value.name == name) return &value;
  }
  return nullptr;
}

/// The place of a member, as JSON pointer; characters that would break its line are escaped.
std::string Member(const std::string& place, const std::string& key) {
  std::string name;
  for (const char character : key) {
    if (character == '~')
      name += "~0";
    else if (character == '/')
      name += "~1";
    else
      name += character;
  }
  const std::string quoted = Json(name).dump();
  return place + "/" + quoted.substr(1, quoted.size() - 2);
}

/// Follows the parser through a document and refuses a key that stands twice in one object, of
/// which only one value would be seen.
class KeyCheck {
 public:
  bool See(Json::parse_event_t event, const Json& value) {
    using Event = Json::parse_event_t;
    if (event == Event::object_end || event == Event::array_end) {
      m_open.pop_back();
      return true;
    }
    if (event == Event::key) {
      Open& object = m_open.back();
      object.key = value.get_ref<const std::string&>();
      if (!object.keys.insert(object.key).second) Fail(Place(), "stands there twice");
      return true;
    }
    if (!m_open.empty()) ++m_open.back().elements;
    if (event != Event::value) m_open.emplace_back().isArray = event == Event::array_start;
    return true;
  }

 private:
  struct Open {
    bool isArray = false;
    std::size_t elements = 0;
    std::string key = {};
    std::set<std::string> keys = {};
  };

  std::string Place() const {
    std::string place;
    for (const Open& open : m_open)
      place =
          open.isArray ? place + "/" + std::to_string(open.elements - 1) : Member(place, open.key);
    return place;
  }

  std::vector<Open> m_open;
};

class Parser {
 public:
  ParsedMenu Parse(const Json& document) {
    if (!document.is_object()) Fail("", "must be an object");
    if (const auto header = document.find("header"); header != document.end()) ReadHeader(*header);
    if (document.contains("caption")) {
      AddItem(document, clsOrvaneData::TypeRoot, 0, "", 0);
    } else {
      for (const auto& [key, value] : document.items()) {
        if (key == "items")
          AddItems(value, 0, "/items", 0);
        else if (!IsDocumentKey(key))
          Fail(Member("", key), "is not known in a document without a caption");
      }
    }
    return std::move(m_menu);
  }

 private:
  static bool IsDocumentKey(std::string_view key) { return key == "$schema" || key == "header"; }

  void ReadHeader(const Json& value) {
    if (!value.is_array() || value.size() != 2)
      Fail("/header",
           "must be a list of two numbers: the first and the third of the file's header");
    m_menu.definition.header.HeaderValue1 = NumberOf(value[0], {}, "/header/0");
    m_menu.definition.header.HeaderValue3 = NumberOf(value[1], {}, "/header/1");
  }

  void AddItems(const Json& items, std::int32_t parent, const std::string& place, int depth) {
    if (!items.is_array()) Fail(place, "must be a list");
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::string itemPlace = place + "/" + std::to_string(i);
      const Json& item = items[i];
      if (!item.is_object()) Fail(itemPlace, "must be an object");
      if (depth > MaxDepth)
        Fail(itemPlace, "is nested deeper than " + std::to_string(MaxDepth) + " popups");
      const auto type = item.find("type");
      if (type == item.end()) Fail(itemPlace, "has no type");
      AddItem(item, NumberOf(*type, TypeNames, itemPlace + "/type"), parent, itemPlace, depth);
    }
  }

  void AddItem(const Json& json, std::int32_t type, std::int32_t parent, const std::string& place,
               int depth) {
    Definition::Item item;
    item.parent = parent;
    item.data.m_lType = type;
    const Json* children = nullptr;
    for (const auto& [key, value] : json.items()) {
      if (key == "items" && (item.data.IsTypeRoot() || item.data.IsTypePopupMenu()))
        children = &value;
      else if (key == "options")
        item.data.m_lOptions = BitsOf(value, OptionNames, place + "/options");
      else if (const DataValue* known = FindValue(type, key))
        Store(value, *known, item.data, place + "/" + key);
      else if (!IsKnownKey(key, place))
        Fail(Member(place, key), "is not known for this type of item");
    }
    m_menu.definition.items.push_back(std::move(item));
    m_menu.places.push_back(place);
    const auto index = static_cast<std::int32_t>(m_menu.definition.items.size());
    if (children) AddItems(*children, index, place + "/items", place.empty() ? 0 : depth + 1);
  }

  static bool IsKnownKey(std::string_view key, const std::string& place) {
    return place.empty() ? IsDocumentKey(key) : key == "type";
  }

  static void Store(const Json& json, const DataValue& value, clsOrvaneData& data,
                    const std::string& place) {
    if (const auto* text = std::get_if<FieldText clsOrvaneData::*>(&value.field))
      data.** text = TextOf(json, place);
    else
      data.*std::get<std::int32_t clsOrvaneData::*>(value.field) =
          BitsOf(json, BitNamesOf(value.name), place);
  }

  ParsedMenu m_menu;
};

}  // namespace

ParsedMenu ParseMenu(std::string_view json) {
  Json document;
  KeyCheck keys;
  const auto see = [&keys](int, Json::parse_event_t event, Json& value) {
    return keys.See(event, value);
  };
  try {
    document = Json::parse(json, see, true, true);
  } catch (const Json::exception& error) {
    // "[json.exception.parse_error.101] parse error at line 3, column 5: ..."
    const std::string message = error.what();
    throw DocumentError(message.substr(message.find("] ") + 2));
  }
  return Parser().Parse(document);
}

}  // namespace orvane::tool
