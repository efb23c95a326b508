#include "MenuDocument.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <span>

#include "menudata/World.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Data = clsOrvaneData;
using Json = nlohmann::json;
using test::World;

std::string DataFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Definition Read(World& world, std::span<const std::byte> bytes) {
  DefinitionFile file = world.File({bytes.begin(), bytes.end()});
  return ReadDefinition(file, world.tools);
}

using Field = std::variant<FieldText Data::*, std::int32_t Data::*>;

const std::map<std::string, Field>& Fields() {
  static const std::map<std::string, Field> fields = {
      {"type", &Data::m_lType},
      {"options", &Data::m_lOptions},
      {"m_szRoot_Caption", &Data::m_szRoot_Caption},
      {"m_szFolder_Location", &Data::m_szFolder_Location},
      {"m_szFolder_Caption", &Data::m_szFolder_Caption},
      {"m_szPopupMenu_caption", &Data::m_szPopupMenu_caption},
      {"m_szFile_Location", &Data::m_szFile_Location},
      {"m_szFile_Caption", &Data::m_szFile_Caption},
      {"m_szAction_Caption", &Data::m_szAction_Caption},
      {"m_szAction_Actions", &Data::m_szAction_Actions},
      {"m_szSelection_WorkingDir", &Data::m_szSelection_WorkingDir},
      {"m_szSelection_Caption", &Data::m_szSelection_Caption},
      {"m_szSelection_Command", &Data::m_szSelection_Command},
      {"m_szSelection_Parms", &Data::m_szSelection_Parms},
      {"m_szSelection_File", &Data::m_szSelection_File},
      {"m_szSelection_CmdPrefix", &Data::m_szSelection_CmdPrefix},
      {"m_szSelection_CmdSuffix", &Data::m_szSelection_CmdSuffix},
      {"m_szSelection_FilePrefix", &Data::m_szSelection_FilePrefix},
      {"m_szSelection_FileSuffix", &Data::m_szSelection_FileSuffix},
      {"m_szSelection_Filter", &Data::m_szSelection_Filter},
      {"m_lSelection_Options", &Data::m_lSelection_Options},
      {"m_szDFolder_Location", &Data::m_szDFolder_Location},
      {"m_szDFolder_Caption", &Data::m_szDFolder_Caption},
      {"m_szDFolder_Filter", &Data::m_szDFolder_Filter},
      {"m_lDFolder_Options", &Data::m_lDFolder_Options},
      {"m_szCopyToX_Location", &Data::m_szCopyToX_Location},
      {"m_szCopyToX_Caption", &Data::m_szCopyToX_Caption},
      {"m_lCopyToX_Options", &Data::m_lCopyToX_Options},
  };
  return fields;
}

/// Every field of the record, the ones that its type does not have included.
void ExpectRecord(const Data& data, const Json& expected, const std::string& where) {
  for (const auto& [name, field] : Fields()) {
    if (const auto* text = std::get_if<FieldText Data::*>(&field))
      EXPECT_EQ(ToUtf8(data.**text), expected.value(name, "")) << where << ' ' << name;
    else
      EXPECT_EQ(data.*std::get<std::int32_t Data::*>(field), expected.value(name, 0))
          << where << ' ' << name;
  }
  EXPECT_EQ(data.m_oBitmap, nullptr);
}

TEST(Fixtures, HoldWhatTheirDescriptionsSay) {
  for (const std::string name : {"every-kind", "root-only", "empty-captions", "deep"}) {
    const std::string base = ORVANE_TEST_DATA "/" + name;
    const Json expected = Json::parse(DataFile(base + ".json"));
    const std::string content = DataFile(base + ".cfg");
    World world;
    const Definition definition = Read(world, std::as_bytes(std::span(content)));
    EXPECT_EQ(definition.header.HeaderValue1, expected["header"][0]);
    EXPECT_EQ(definition.header.ItemCount, expected["header"][1]);
    EXPECT_EQ(definition.header.HeaderValue3, expected["header"][2]);
    ASSERT_EQ(definition.items.size(), expected["items"].size()) << name;
    for (std::size_t i = 0; i < definition.items.size(); ++i) {
      const std::string where = name + ", item " + std::to_string(i + 1);
      EXPECT_EQ(definition.items[i].parent, expected["items"][i]["parent"]) << where;
      ExpectRecord(definition.items[i].data, expected["items"][i], where);
    }
  }
}

TEST(MenuDocument, ReadingThenWritingGivesTheSameBytes) {
  const std::string documents[] = {
      DataFile(ORVANE_TEST_DATA "/../../resources/sample-menu.json"), R"({"items": []})",
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
    const Definition definition = ParseMenu(document).definition;
    const auto bytes = WriteDefinition(definition, world.codePage, world.debug);
    const std::string readable = FormatMenu(Read(world, bytes));
    EXPECT_EQ(WriteDefinition(ParseMenu(readable).definition, world.codePage, world.debug), bytes)
        << readable;
    EXPECT_EQ(FormatMenu(Read(world, bytes)), readable);
  }
}

TEST(MenuDocument, ItemsKnowTheirParentsAndTheirPlaces) {
  const ParsedMenu menu = ParseMenu(R"({"caption": "r", "items": [
      {"type": "popup", "items": [{"type": "file"}]}, {"type": "separator"}]})");
  std::vector<std::int32_t> parents;
  for (const auto& item : menu.definition.items) parents.push_back(item.parent);
  EXPECT_EQ(parents, (std::vector{0, 1, 2, 1}));
  EXPECT_EQ(menu.places,
            (std::vector<std::string>{"", "/items/0", "/items/0/items/0", "/items/1"}));
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
      {R"({"items": [{"type": "file", "captoin": "x"}]})", "/items/0/captoin: is not known"},
      {R"({"items": [{"type": "file", "caption": 5}]})", "/items/0/caption: must be a text"},
      {R"({"items": [{"type": "file", "items": []}]})", "/items/0/items: is not known"},
      {R"({"items": [{"type": "folder", "options": ["leaf", "x"]}]})", "/items/0/options/1: \"x\""},
      {R"({"items": [{"type": "folder", "options": 4294967295}]})", "/items/0/options: must be a"},
      {R"({"items": [{"type": 1.5}]})", "/items/0/type: must be a"},
      {R"({"items": {}})", "/items: must be a list"},
      {R"({"items": [1]})", "/items/0: must be an object"},
      {R"({"caption": "x", "type": "file"})", "/type: is not known"},
      {R"({"options": 1})", "/options: is not known"},
      {R"({"header": [1]})", "/header: must be a list"},
      {R"({"items": [{"type": "file", "a/b\n": 1}]})", "/items/0/a~1b\\n: is not known"},
      {R"({"items": [{"type": "file"}, {"type": "file", "type": "root"}]})",
       "/items/1/type: stands there twice"},
      {R"({"options": 1e999})", "number overflow"},
      {"[]", "the document: must be an object"},
      {"{\n  \"items\": [}", "parse error at line 2, column 13"},
      {"", "parse error at line 1"},
      {"{\"caption\": \"\xff\"}", "parse error at line 1"},
      {Nested(MaxDepth + 1), "/items/0/items/0/items/0"},
      {std::string(100000, '['), "parse error"},
  };
  for (const auto& [document, message] : cases) {
    try {
      ParseMenu(document);
      FAIL() << document.substr(0, 100);
    } catch (const DocumentError& error) {
      EXPECT_EQ(std::string(error.what()).find(message), 0u) << error.what();
    }
  }
  EXPECT_NO_THROW(FormatMenu(ParseMenu(Nested(MaxDepth)).definition));
}

TEST(MenuDocument, RefusesDefinitionsThatAreNoTree) {
  const auto formatted = [](std::vector<std::pair<std::int32_t, std::int32_t>> parentsAndTypes) {
    Definition definition;
    for (const auto& [parent, type] : parentsAndTypes) {
      Definition::Item item;
      item.parent = parent;
      item.data.m_lType = type;
      definition.items.push_back(item);
    }
    try {
      FormatMenu(definition);
    } catch (const DocumentError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_EQ(formatted({{0, 0}, {1, 6}}), "");
  EXPECT_NE(formatted({{0, 0}, {2, 6}}), "") << "itself";
  EXPECT_NE(formatted({{0, 0}, {3, 6}, {1, 2}}), "") << "later";
  EXPECT_NE(formatted({{0, 0}, {-1, 6}}), "") << "negative";
  EXPECT_EQ(formatted({{0, 0}, {1, 6}, {2, 6}}), "item 3: its parent, item 2, is no popup");
  std::vector<std::pair<std::int32_t, std::int32_t>> deep;
  for (std::int32_t i = 0; i < 100'000; ++i) deep.emplace_back(i, 2);
  EXPECT_EQ(formatted(deep), "item 1002: is nested deeper than 1000 popups");
}

}  // namespace
}  // namespace orvane::tool
