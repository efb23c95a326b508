#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>

#include "menudata/World.h"
#include "menudoc/ItemKinds.h"

namespace orvane {
namespace {

using Json = nlohmann::json;

const Json& Schema() {
  static const Json schema =
      Json::parse(test::TextOfFile(ORVANE_TEST_DATA "/../../resources/menu.schema.json"));
  return schema;
}

/// The schema of the kind's items; null without one.
const Json* SchemaOf(const ItemKind& kind) {
  for (const Json& item : Schema()["definitions"]["ownItem"]["oneOf"]) {
    const Json& type = item["properties"]["type"];
    if (type.contains("enum") && type["enum"] == Json({kind.name, kind.type})) return &item;
  }
  return nullptr;
}

TEST(MenuSchema, HasTheFieldsOfEachKind) {
  for (const ItemKind& kind : ItemKinds()) {
    if (kind.fields.empty()) continue;  // the schema takes what has no fields together
    const Json* schema = SchemaOf(kind);
    ASSERT_TRUE(schema) << kind.name;
    std::set<std::string> expected = {"type", "options"};
    for (const ItemField& field : kind.fields) {
      expected.emplace(field.name);
      const std::string text =
          (*schema)["properties"].value(std::string(field.name), Json()).dump();
      EXPECT_EQ(text.find("/path") != text.npos, IsPath(field.use)) << kind.name << field.name;
    }
    if (kind.holdsItems) expected.insert("items");
    std::set<std::string> names;
    for (const auto& [name, value] : (*schema)["properties"].items()) names.insert(name);
    EXPECT_EQ(names, expected) << kind.name;
  }
}

TEST(MenuSchema, HasTheNamesOfKindsAndBits) {
  std::set<std::string> names;
  const auto collect = [&](const auto& self, const Json& json) -> void {
    if (json.is_object() && json.contains("enum")) {
      for (const Json& name : json["enum"]) {
        if (name.is_string()) names.insert(name);
      }
    }
    for (const Json& inner : json) {
      if (inner.is_structured()) self(self, inner);
    }
  };
  collect(collect, Schema());
  std::set<std::string> expected;
  const auto addBits = [&](const ItemField& field) {
    for (const NamedBit& bit : field.bits) expected.emplace(bit.name);
  };
  addBits(OptionsField());
  for (const ItemKind& kind : ItemKinds()) {
    expected.emplace(kind.name);
    for (const ItemField& field : kind.fields) addBits(field);
  }
  EXPECT_EQ(names, expected);
}

}  // namespace
}  // namespace orvane
