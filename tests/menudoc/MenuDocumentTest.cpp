#include "menudoc/MenuDocument.h"

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>

#include "menudata/DataValues.h"
#include "menudata/World.h"
#include "menudoc/MenuTree.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Json = nlohmann::json;
using test::World;

#define FIELD(name) \
  { #name, &Data::name }

const std::map<std::string, DataField> Fields = {
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
           {"type": "dynamicFolder", "folderOptions": 3, "location": "C:\\100%% %%x%% % %a"},
           {"type": "customAction", "actions": "%f%n%%"},
           {"type": "copyTo", "copyOptions": ["move"]}]})",
      R"({"items": [{"type": "file", "caption": "caf\u00e9 \u20ac \u0081"}, {"type": "root"}]})"};
  for (const std::string& document : documents) {
    World world;
    const auto write = [&](const std::string& json) {
      return WriteDefinition(ParseMenu(json).menu, world.codePage, world.scrambler);
    };
    const auto bytes = write(document);
    const std::string readable = FormatMenu(InTreeOrder(world.Read(bytes)));
    EXPECT_EQ(write(readable), bytes) << readable;
  }
}

TEST(MenuDocument, ItemsKnowTheirParentsAndTheirPlaces) {
  const ParsedMenu parsed = ParseMenu(R"({"caption": "r", "items": [
      {"type": "popup", "items": [{"type": "file"}]}, {"type": "separator"}]})");
  const auto& items = parsed.menu.items;
  ASSERT_EQ(items.size(), 4u);
  EXPECT_EQ(items[2].parent, 2);
  EXPECT_EQ(parsed.places[2], "/items/0/items/0");
  EXPECT_EQ(items[3].parent, 1);
  EXPECT_EQ(parsed.places, PlacesOf(parsed.menu));
}

std::string Nested(int popups) {
  std::string document = R"({"caption": "r", "items": [)";
  for (int i = 0; i < popups; ++i) document += R"({"type": "popup", "items": [)";
  document += R"({"type": "separator"})";
  for (int i = 0; i < popups; ++i) document += "]}";
  document += "]}";
  return document;
}

std::string Listed(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding& finding : findings) {
    EXPECT_NE(finding.remedy, "") << finding.text;
    text += finding.place + ": " + finding.text + "\n";
  }
  return text;
}

TEST(MenuDocument, SaysAllThatIsWrongAndWhere) {
  const std::pair<std::string, std::string> cases[] = {
      {R"({"items": [{"type": "fil", "x": 1}, {"caption": "x"}, 1, {"type": 1.5}]})",
       "/items/0/type: \"fil\" is no type\n/items/1: has no type\n/items/2: is no object\n"
       "/items/3/type: 1.5 is no type\n"},
      {R"({"items": [{"type": "file", "a/b\n": "x", "caption": 5},
                     {"type": "folder", "options": ["leaf", "x"], "csidl": 5}]})",
       "/items/0/a~1b\n: is not known for this type of item\n/items/0/caption: is no text\n"
       "/items/1/csidl: is not known for this type of item\n"
       "/items/1/options/1: is neither a name nor a number\n"},
      {R"({"items": {}, "x": 1})",
       "/items: is no list\n/x: is not known in a document without a caption\n"},
      {R"({"caption": "x", "type": "file"})", "/type: is not known for this type of item\n"},
      {R"({"header": [1]})", "/header: is no list of two numbers\n"},
      {R"({"items": [{"type": "file"}, {"type": "file", "type": "root"}]})",
       "/items/1/type: stands there twice\n"},
      {R"({"caption": "x", "options": 4294967296})", "/options: is neither a name nor a number\n"},
      {"[]", ": is no object\n"},
  };
  for (const auto& [document, expected] : cases)
    EXPECT_EQ(Listed(ParseMenu(document).findings), expected) << document;
}

TEST(MenuDocument, PopupsNestToALimit) {
  const ParsedMenu deepest = ParseMenu(Nested(MaxDepth));
  EXPECT_EQ(Listed(deepest.findings), "");
  EXPECT_EQ(Listed(ParseMenu(FormatMenu(deepest.menu)).findings), "");
  const auto findings = ParseMenu(Nested(MaxDepth + 1)).findings;
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].text, "lies in more than 1000 popups");
}

/// The items one below the other: each with its caption, one blank deeper than its parent.
std::string Outline(const MenuDocument& menu) {
  const std::vector<int> depths = DepthsOf(menu);
  std::string text;
  for (std::size_t i = 0; i < menu.items.size(); ++i)
    text += std::string(static_cast<std::size_t>(depths[i]), ' ') +
            ToUtf8(menu.items[i].data.Caption()) + "\n";
  return text;
}

TEST(MenuTree, ItemsAreTakenOutPutInAndCarriedAsText) {
  MenuDocument menu = ParseMenu(R"({"caption": "r", "items": [
      {"type": "popup", "caption": "a", "items": [
        {"type": "popup", "caption": "b", "items": [{"type": "file", "caption": "c"}]},
        {"type": "file", "caption": "d"}]},
      {"type": "popup", "caption": "e", "items": [{"type": "file", "caption": "f"}]}]})")
                          .menu;
  EXPECT_EQ(EndOfItem(menu, 1), 5u);
  EXPECT_EQ(PlacesOf(menu)[6], "/items/1/items/0");
  const MenuDocument b = ParseItems(FormatItems(CopyItems(menu, 2, 4))).menu;
  EXPECT_EQ(Outline(b), "b\n c\n");
  RemoveItem(menu, 2);
  EXPECT_EQ(Outline(menu), "r\na\n d\ne\n f\n");
  InsertItems(menu, 5, 4, b);  // at the end of e
  EXPECT_EQ(Outline(menu), "r\na\n d\ne\n f\n b\n  c\n");
  InsertItems(menu, 1, 1, b);
  EXPECT_EQ(Outline(menu), "r\nb\n c\na\n d\ne\n f\n b\n  c\n");
  EXPECT_EQ(FormatMenu(InTreeOrder(menu)), FormatMenu(menu));
}

TEST(MenuDocument, RefusesDefinitionsThatAreNoTree) {
  const auto messageFor = [](const std::vector<std::pair<std::int32_t, std::int32_t>>& items) {
    Definition definition;
    for (const auto& [parent, type] : items)
      definition.items.emplace_back(parent).data.m_lType = type;
    try {
      InTreeOrder(definition);
    } catch (const DocumentError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_EQ(messageFor({{0, 0}, {1, 6}}), "");
  EXPECT_NE(messageFor({{0, 0}, {2, 2}}), "") << "itself";
  EXPECT_EQ(messageFor({{0, 0}, {3, 6}, {1, 2}}),
            "item 2: its parent, item 3, does not stand before it");
  EXPECT_NE(messageFor({{0, 0}, {-1, 6}}), "") << "negative";
  std::vector<std::pair<std::int32_t, std::int32_t>> deep;
  for (std::int32_t i = 0; i < 100'000; ++i) deep.emplace_back(i, 2);
  EXPECT_EQ(messageFor(deep), "popups lie in more than 1000 popups");
}

}  // namespace
}  // namespace orvane
