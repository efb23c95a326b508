#include "menudata/Definition.h"

#include <gtest/gtest.h>

#include <array>

#include "menudata/World.h"

namespace orvane {
namespace {

using test::Bytes;
using test::Fixture;
using test::World;

// What each fixture holds, item by item, is compared by the companion's test.
TEST(Definition, WritesForeignFilesBackByteForByte) {
  World world;
  for (const char* name : {"every-kind.cfg", "root-only.cfg", "empty-captions.cfg", "deep.cfg"}) {
    const auto bytes = Fixture(name);
    EXPECT_EQ(WriteDefinition(world.Read(bytes), world.codePage, world.scrambler), bytes) << name;
  }
}

TEST(Definition, CorruptFilesAreRefusedWithThePlace) {
  World world;
  const std::pair<std::vector<std::byte>, std::wstring> cases[] = {
      {Fixture("corrupt-version.cfg"), L"version: Invalid file version!"},
      {Fixture("corrupt-header.cfg"), L"header: File is corrupt!"},
      {Fixture("corrupt-item-header.cfg"), L"item 1: File is corrupt!"},
      {Fixture("corrupt-truncated.cfg"), L"item 12: File is corrupt!"},
      {Fixture("corrupt-count.cfg"), L"item 2: File is corrupt!"},
      {world.Records({L"1", L"0,x"}), L"header: What should be a number is none"}};
  for (const auto& [bytes, message] : cases) {
    try {
      world.Read(bytes);
      ADD_FAILURE() << message;
    } catch (const Error& error) {
      EXPECT_EQ(error.Description(), message);
    }
  }
}

TEST(DefinitionFile, RefusesRecordsThatBreakTheLayout) {
  World world;
  const std::vector<int> records[] = {
      {8}, {8, 0, 1}, {8, 0, 2, 0, 65}, {3, 0, 1, 0, 65}, {8, 1, 1, 0, 65}};
  for (const auto& record : records) {
    DefinitionFile file = world.File(Bytes(record));
    EXPECT_EQ(test::ErrorOf([&] { file.Next(); }), CorruptFile::ErrorNumber) << record.size();
  }
}

/// What a header's reading leaves of the numbers 97, 98 and 99; with a reason when it fails.
std::string Outcome(std::int32_t error, bool read, std::array<std::int32_t, 3> numbers) {
  std::string outcome = error ? "error " + std::to_string(error) + ":" : read ? "" : "refused:";
  for (const std::int32_t number : numbers) outcome += " " + std::to_string(number);
  return outcome;
}

TEST(clsOrvaneDataTools, Headers) {
  World world;
  const auto read = [&](const wchar_t* text) {
    DefinitionFile file = world.File(world.Records({text}));
    clsFileHeader header{97, 98, 99};
    bool isRead = false;
    const auto error = test::ErrorOf([&] { isRead = world.tools.File_ReadHeader(file, header); });
    return Outcome(error, isRead, {header.HeaderValue1, header.ItemCount, header.HeaderValue3});
  };
  EXPECT_EQ(read(L"0,3"), " 0 3 99");
  EXPECT_EQ(read(L"1,2,3,4"), " 1 2 3");
  EXPECT_EQ(read(L" 1 ,'-2'"), " 1 -2 99");
  EXPECT_EQ(read(L"5"), "refused: 97 98 99");
  EXPECT_EQ(read(L"1,2,x"), "error 13: 97 98 99");
  EXPECT_EQ(read(L"1,3000000000"), "error 6: 97 98 99");
}

TEST(clsOrvaneDataTools, ItemHeaders) {
  World world;
  const auto read = [&](const wchar_t* text) {
    DefinitionFile file = world.File(world.Records({text}));
    std::int32_t parent = 97;
    clsOrvaneData item;
    item.m_lType = 98;
    item.m_lOptions = 99;
    bool isRead = false;
    const auto error =
        test::ErrorOf([&] { isRead = world.tools.File_ReadItemHeader(file, parent, item); });
    return Outcome(error, isRead, {parent, item.m_lType, item.m_lOptions});
  };
  EXPECT_EQ(read(L"-1,2147483647,0"), " -1 2147483647 0");
  EXPECT_EQ(read(L"'1', 6,'3'"), " 1 6 3");
  EXPECT_EQ(read(L"1,6,0,0"), "refused: 97 98 99");
  EXPECT_EQ(read(L""), "refused: 97 98 99");
  EXPECT_EQ(read(L"1,6,12x"), "error 13: 97 98 99");
  EXPECT_EQ(read(L"2147483648,6,0"), "error 6: 97 98 99");
}

TEST(Definition, TextsThatTheFileCannotHold) {
  World world;
  Definition definition;
  definition.items.resize(2);
  clsOrvaneData& item = definition.items[1].data;
  item.m_lType = clsOrvaneData::TypeFile;
  item.Caption(std::wstring(65535, L'x'));
  EXPECT_NO_THROW(WriteDefinition(definition, world.codePage, world.scrambler));
  for (const std::wstring& caption : {std::wstring(65536, L'x'), std::wstring(L"\u4e2d")}) {
    item.Caption(caption);
    try {
      WriteDefinition(definition, world.codePage, world.scrambler);
      ADD_FAILURE() << caption.size();
    } catch (const UnwritableText& error) {
      EXPECT_EQ(error.Item(), 1u);
      EXPECT_EQ(error.Field(), &clsOrvaneData::m_szFile_Caption);
    }
  }
}

}  // namespace
}  // namespace orvane
