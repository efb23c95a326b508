#include "menudoc/MenuDocument.h"

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>

#include "menudata/World.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Data = clsOrvaneData;
using Json = nlohmann::json;
using test::World;

using Field = std::variant<FieldText Data::*, std::int32_t Data::*>;

#define FIELD(name) \
  { #name, &Data::name }

const std::map<std::string, Field> Fields = {
    {"type", &Data::m_lType},        {"options", &Data::m_lOptions},
    FIELD(m_szRoot_Caption),         FIELD(m_szFolder_Location),
    FIELD(m_szFolder_Caption),       FIELD(m_szPopupMenu_caption),
    FIELD(m_szFile_Location),        FIELD(m_szFile_Caption),
    FIELD(m_szAction_Caption),       FIELD(m_szAction_Actions),
    FIELD(m_szSelection_WorkingDir), FIELD(m_szSelection_Caption),
    FIELD(m_szSelection_Command),    FIELD(m_szSelection_Parms),
    FIELD(m_szSelection_File),       FIELD(m_szSelection_CmdPrefix),
    FIELD(m_szSelection_CmdSuffix),  FIELD(m_szSelection_FilePrefix),
    FIELD(m_szSelection_FileSuffix), FIELD(m_szSelection_Filter),
    FIELD(m_lSelection_Options),     FIELD(m_szDFolder_Location),
    FIELD(m_szDFolder_Caption),      FIELD(m_szDFolder_Filter),
    FIELD(m_lDFolder_Options),       FIELD(m_szCopyToX_Location),
    FIELD(m_szCopyToX_Caption),      FIELD(m_lCopyToX_Options)};

#undef FIELD

/// Every field of the record, the ones that its type does not have included.
void ExpectRecord(const Data& data, const Json& expected, const std::string& where) {
  for (const auto& [name, field] : Fields) {
    if (const auto* text = std::get_if<FieldText Data::*>(&field))
      EXPECT_EQ(ToUtf8(data.**text), expected.value(name, "")) << where << ' ' << name;
    else
      EXPECT_EQ(data.*std::get<std::int32_t Data::*>(field), expected.value(name, 0))
          << where << ' ' << name;
  }
}

TEST(Fixtures, HoldWhatTheirDescriptionsSay) {
  for (const std::string name : {"every-kind", "root-only", "empty-captions", "deep"}) {
    const Json expected = Json::parse(test::TextOfFile(ORVANE_TEST_DATA "/" + name + ".json"));
    World world;
    const auto [header, items] = world.Read(test::Fixture(name + ".cfg"));
    EXPECT_EQ(Json({header.HeaderValue1, header.ItemCount, header.HeaderValue3}),
              expected["header"]);
    ASSERT_EQ(items.size(), expected["items"].size()) << name;
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::string where = name + ", item " + std::to_string(i + 1);
      EXPECT_EQ(items[i].parent, expected["items"][i]["parent"]) << where;
      ExpectRecord(items[i].data, expected["items"][i], where);
    }
  }
}

TEST(MenuDocument, ReadingThenWritingGivesTheSameBytes) {
  const std::string documents[] = {
      test::TextOfFile(ORVANE_TEST_DATA "/../../resources/sample-menu.json"), R"({"items": []})",
      R"({"caption": ""})",
      R"({"caption": "x", "options": ["leaf", 64], "header": [5, -7], "items": [
           // comments are allowed
           {"type": "popup", "items": [{"type": "separator"}, {"type": "popup", "items": []}]},
           {"type": 4, "options": [1, "csidl", -2147483648]},
           {"type": "root", "caption": "second", "items": [{"type": "file"}]},
           {"type": "selectionTask", "caption": "a\u0000b", "selectionOptions": 255},
           {"type": "dynamicFolder", "folderOptions": 3},
           {"type": "copyTo", "copyOptions": ["move"]}]})",
      R"({"items": [{"type": "file", "caption": "caf\u00e9 \u20ac \u0081"}, {"type": "root"}]})"};
  for (const std::string& document : documents) {
    World world;
    const auto write = [&](const std::string& json) {
      return WriteDefinition(ParseMenu(json).definition, world.codePage, world.debug);
    };
    const auto bytes = write(document);
    const std::string readable = FormatMenu(world.Read(bytes));
    EXPECT_EQ(write(readable), bytes) << readable;
  }
}

TEST(MenuDocument, ItemsKnowTheirParentsAndTheirPlaces) {
  const auto [definition, places] = ParseMenu(R"({"caption": "r", "items": [
      {"type": "popup", "items": [{"type": "file"}]}, {"type": "separator"}]})");
  ASSERT_EQ(definition.items.size(), 4u);
  EXPECT_EQ(definition.items[2].parent, 2);
  EXPECT_EQ(places[2], "/items/0/items/0");
  EXPECT_EQ(definition.items[3].parent, 1);
  EXPECT_EQ(places[3], "/items/1");
}

std::string Nested(int popups) {
  std::string document = R"({"caption": "r", "items": [)";
  for (int i = 0; i < popups; ++i) document += R"({"type": "popup", "items": [)";
  document += R"({"type": "separator"})";
  for (int i = 0; i < popups; ++i) document += "]}";
  document += "]}";
  return document;
}

TEST(MenuDocument, RefusesWhatIsNoMenuAndSaysWhere) {
  const std::pair<std::string, const char*> cases[] = {
      {R"({"items": [{"type": "fil"}]})", "/items/0/type: \"fil\" is none of root, folder,"},
      {R"({"items": [{"caption": "x"}]})", "/items/0: has no type"},
      {R"({"items": [{"type": "file", "a/b\n": "x"}]})", "/items/0/a~1b\\n: is not known"},
      {R"({"items": [{"type": "file", "caption": 5}]})", "/items/0/caption: must be a text"},
      {R"({"items": [{"type": "file", "items": []}]})", "/items/0/items: is not known"},
      {R"({"items": [{"type": "folder", "options": ["leaf", "x"]}]})", "/items/0/options/1: \"x\""},
      {R"({"items": [{"type": 1.5}]})", "/items/0/type: must be a"},
      {R"({"items": {}})", "/items: must be a list"},
      {R"({"items": [1]})", "/items/0: must be an object"},
      {R"({"caption": "x", "type": "file"})", "/type: is not known"},
      {R"({"header": [1]})", "/header: must be a list"},
      {R"({"items": [{"type": "file"}, {"type": "file", "type": "root"}]})",
       "/items/1/type: stands there twice"},
      {R"({"options": 1e999})", "number overflow"},
      {"[]", "the document: must be an object"},
      {"{\n  \"items\": [}", "parse error at line 2, column 13"},
      {Nested(MaxDepth + 1), "/items/0/items/0/items/0"},
      {std::string(100000, '['), "parse error"},
  };
  for (const auto& [document, message] : cases) {
    try {
      ParseMenu(document);
      ADD_FAILURE() << document.substr(0, 100);
    } catch (const DocumentError& error) {
      EXPECT_EQ(std::string(error.what()).find(message), 0u) << error.what();
    }
  }
  EXPECT_NO_THROW(FormatMenu(ParseMenu(Nested(MaxDepth)).definition));
}

TEST(MenuDocument, RefusesDefinitionsThatAreNoTree) {
  const auto messageFor = [](const std::vector<std::pair<std::int32_t, std::int32_t>>& items) {
    Definition definition;
    for (const auto& [parent, type] : items)
      definition.items.emplace_back(parent).data.m_lType = type;
    try {
      FormatMenu(definition);
    } catch (const DocumentError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_EQ(messageFor({{0, 0}, {1, 6}}), "");
  EXPECT_NE(messageFor({{0, 0}, {2, 2}}), "") << "itself";
  EXPECT_NE(messageFor({{0, 0}, {3, 6}, {1, 2}}), "") << "later";
  EXPECT_NE(messageFor({{0, 0}, {-1, 6}}), "") << "negative";
  EXPECT_EQ(messageFor({{0, 0}, {1, 6}, {2, 6}}), "item 3: its parent, item 2, is no popup");
  std::vector<std::pair<std::int32_t, std::int32_t>> deep;
  for (std::int32_t i = 0; i < 100'000; ++i) deep.emplace_back(i, 2);
  EXPECT_EQ(messageFor(deep), "item 1002: is nested deeper than 1000 popups");
}

}  // namespace
}  // namespace orvane::tool
