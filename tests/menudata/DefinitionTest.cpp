#include "menudata/Definition.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "menudata/DataValues.h"
#include "menudata/World.h"

namespace orvane {
namespace {

using test::World;

std::vector<std::byte> Fixture(const std::string& name) {
  std::ifstream file(ORVANE_TEST_DATA "/" + name, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  const auto bytes = std::as_bytes(std::span(content));
  return {bytes.begin(), bytes.end()};
}

void ExpectEqual(const Definition& a, const Definition& b) {
  EXPECT_EQ(a.header.HeaderValue1, b.header.HeaderValue1);
  EXPECT_EQ(a.header.HeaderValue3, b.header.HeaderValue3);
  ASSERT_EQ(a.items.size(), b.items.size());
  for (std::size_t i = 0; i < a.items.size(); ++i) {
    EXPECT_EQ(a.items[i].parent, b.items[i].parent) << i;
    EXPECT_EQ(a.items[i].data.m_lType, b.items[i].data.m_lType) << i;
    EXPECT_EQ(a.items[i].data.m_lOptions, b.items[i].data.m_lOptions) << i;
    for (const DataValue& value : DataValuesOf(a.items[i].data.m_lType)) {
      std::visit(
          [&](auto field) {
            EXPECT_EQ(a.items[i].data.*field, b.items[i].data.*field) << i << ' ' << value.name;
          },
          value.field);
    }
  }
}

// What each fixture holds, item by item, is compared through the companion's own test; here, that
// what the writer makes of it is the file again.
TEST(Definition, WritesForeignFilesBackByteForByte) {
  for (const char* name : {"every-kind.cfg", "root-only.cfg", "empty-captions.cfg", "deep.cfg"}) {
    World world;
    const auto bytes = Fixture(name);
    ASSERT_FALSE(bytes.empty()) << name;
    DefinitionFile file = world.File(bytes);
    const Definition definition = ReadDefinition(file, world.tools);
    EXPECT_EQ(WriteDefinition(definition, world.codePage, world.debug), bytes) << name;
  }
}

TEST(Definition, RefusesCorruptFiles) {
  const struct {
    const char* file;
    const wchar_t* message;
  } cases[] = {{"corrupt-version.cfg", L"version: Invalid file version!"},
               {"corrupt-header.cfg", L"header: File is corrupt!"},
               {"corrupt-item-header.cfg", L"item 1: File is corrupt!"},
               {"corrupt-truncated.cfg", L"item 12: File is corrupt!"},
               {"corrupt-count.cfg", L"item 2: File is corrupt!"}};
  for (const auto& row : cases) {
    World world;
    DefinitionFile file = world.File(Fixture(row.file));
    try {
      ReadDefinition(file, world.tools);
      FAIL() << row.file;
    } catch (const Error& error) {
      EXPECT_EQ(error.Description(), row.message) << row.file;
    }
  }
}

TEST(DefinitionFile, RecordsThatBreakTheLayout) {
  World world;
  const auto next = [&](std::vector<int> numbers) {
    std::vector<std::byte> bytes;
    for (int number : numbers) bytes.push_back(static_cast<std::byte>(number));
    DefinitionFile file = world.File(bytes);
    return World::ErrorOf([&] { file.Next(); }) == 0;
  };
  EXPECT_TRUE(next({}));
  EXPECT_TRUE(next({8, 0, 0, 0}));
  EXPECT_TRUE(next({8, 0, 1, 0, 65}));
  EXPECT_FALSE(next({8}));
  EXPECT_FALSE(next({8, 0, 1}));
  EXPECT_FALSE(next({8, 0, 2, 0, 65}));
  EXPECT_FALSE(next({8, 0, 255, 255, 65}));
  EXPECT_FALSE(next({3, 0, 1, 0, 65}));
  EXPECT_FALSE(next({8, 1, 1, 0, 65}));
}

TEST(DefinitionFile, ValuesPastTheEndAreEmpty) {
  World world;
  DefinitionFile file = world.File(world.Records({L"last"}));
  EXPECT_EQ(world.tools.File_ReadString(file), L"last");
  EXPECT_EQ(world.tools.File_ReadString(file), L"");
  EXPECT_EQ(world.tools.File_ReadString(file), L"");
}

TEST(clsOrvaneDataTools, Headers) {
  const struct {
    const wchar_t* text;
    bool read;
    clsFileHeader header;
    std::int32_t error = 0;
  } cases[] = {{L"0,3", true, {0, 3, 99}},          {L"0,3,7", true, {0, 3, 7}},
               {L"5", false, {97, 98, 99}},         {L"", false, {97, 98, 99}},
               {L"1,2,3,4", true, {1, 2, 3}},       {L" 1 , -2 ", true, {1, -2, 99}},
               {L"'1',\"2\"", true, {1, 2, 99}},    {L"1,x", false, {97, 98, 99}, 13},
               {L"1,2,x", false, {97, 98, 99}, 13}, {L"1,3000000000", false, {97, 98, 99}, 6},
               {L",", false, {97, 98, 99}}};
  for (const auto& row : cases) {
    World world;
    DefinitionFile file = world.File(world.Records({row.text}));
    clsFileHeader header{97, 98, 99};
    bool read = false;
    EXPECT_EQ(World::ErrorOf([&] { read = world.tools.File_ReadHeader(file, header); }), row.error)
        << row.text;
    EXPECT_EQ(read, row.read) << row.text;
    EXPECT_EQ(header.HeaderValue1, row.header.HeaderValue1) << row.text;
    EXPECT_EQ(header.ItemCount, row.header.ItemCount) << row.text;
    EXPECT_EQ(header.HeaderValue3, row.header.HeaderValue3) << row.text;
  }
}

TEST(clsOrvaneDataTools, ItemHeaders) {
  const struct {
    const wchar_t* text;
    bool read;
    std::int32_t parent = 91, type = 92, options = 93;
    std::int32_t error = 0;
  } cases[] = {{L"0,0,0", true, 0, 0, 0},
               {L"1,6,0", true, 1, 6, 0},
               {L"1,6", false},
               {L"1,6,0,0", false},
               {L"", false},
               {L"-1,2147483647,-2147483648", true, -1, 2147483647, -2147483647 - 1},
               {L"'1',6,'3'", true, 1, 6, 3},
               {L"1,6,12x", false, 91, 92, 93, 13},
               {L"1,1e3,0", false, 91, 92, 93, 13},
               {L"2147483648,6,0", false, 91, 92, 93, 6}};
  for (const auto& row : cases) {
    World world;
    DefinitionFile file = world.File(world.Records({row.text}));
    std::int32_t parent = 91;
    clsOrvaneData item;
    item.m_lType = 92;
    item.m_lOptions = 93;
    bool read = false;
    EXPECT_EQ(World::ErrorOf([&] { read = world.tools.File_ReadItemHeader(file, parent, item); }),
              row.error)
        << row.text;
    EXPECT_EQ(read, row.read) << row.text;
    EXPECT_EQ(parent, row.parent) << row.text;
    EXPECT_EQ(item.m_lType, row.type) << row.text;
    EXPECT_EQ(item.m_lOptions, row.options) << row.text;
  }
}

TEST(clsOrvaneDataTools, LogsWhatTheHeadersSay) {
  World world;
  world.debug.Initialize(L"C:\\log.txt", clsTrace::FlagAutoCommit);
  DefinitionFile file = world.File(world.Records({L"1", L"0,3,7", L"5"}));
  clsFileHeader header;
  world.tools.File_ReadVersion(file);
  world.tools.File_ReadHeader(file, header);
  world.tools.File_ReadHeader(file, header);
  const std::string log = world.desktop.files.Content(L"C:\\log.txt").value_or("");
  EXPECT_NE(log.find("File_ReadVersion: 1\r\n"), std::string::npos) << log;
  EXPECT_NE(log.find("File_ReadHeader: True - 0 - 3 - 7\r\n"), std::string::npos) << log;
  EXPECT_NE(log.find("File_ReadHeader: False - 0 - 3 - 7\r\n"), std::string::npos) << log;
}

std::wstring RandomText(std::mt19937& random, const CodePage& codePage) {
  const std::size_t lengths[] = {0, 1, 3, 40, 300};
  std::vector<std::byte> bytes(lengths[random() % 5]);
  for (std::byte& byte : bytes) byte = static_cast<std::byte>(random());
  return codePage.Decode(bytes);
}

Definition RandomDefinition(std::mt19937& random, const CodePage& codePage) {
  Definition definition;
  definition.header = {static_cast<std::int32_t>(random()), 0, static_cast<std::int32_t>(random())};
  const std::size_t count = random() % 30;
  for (std::size_t i = 0; i < count; ++i) {
    Definition::Item item;
    item.parent = static_cast<std::int32_t>(random());
    item.data.m_lType = static_cast<std::int32_t>(random() % 12);
    item.data.m_lOptions = static_cast<std::int32_t>(random());
    for (const DataValue& value : DataValuesOf(item.data.m_lType)) {
      if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&value.field))
        item.data.** number = static_cast<std::int32_t>(random());
      else
        item.data.*std::get<FieldText clsOrvaneData::*>(value.field) = RandomText(random, codePage);
    }
    definition.items.push_back(std::move(item));
  }
  return definition;
}

TEST(Definition, ReadsWhatItWrote) {
  std::mt19937 random(20261122);
  World world;
  for (int round = 0; round < 200; ++round) {
    const Definition definition = RandomDefinition(random, world.codePage);
    DefinitionFile file = world.File(WriteDefinition(definition, world.codePage, world.debug));
    ExpectEqual(ReadDefinition(file, world.tools), definition);
  }
}

TEST(Definition, TextsThatTheFileCannotHold) {
  World world;
  Definition definition;
  definition.items.resize(2);
  clsOrvaneData& item = definition.items[1].data;
  item.m_lType = clsOrvaneData::TypeFile;
  item.Caption(std::wstring(65535, L'x'));
  EXPECT_NO_THROW(WriteDefinition(definition, world.codePage, world.debug));
  for (const std::wstring& caption : {std::wstring(65536, L'x'), std::wstring(L"\u4e2d")}) {
    item.Caption(caption);
    try {
      WriteDefinition(definition, world.codePage, world.debug);
      FAIL();
    } catch (const UnwritableText& error) {
      EXPECT_EQ(error.Item(), 1u);
      EXPECT_EQ(error.Value(), "caption");
    }
  }
}

}  // namespace
}  // namespace orvane
