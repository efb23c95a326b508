#include "menudata/clsMRU.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "menudata/MenuControl.h"
#include "menudata/World.h"

namespace orvane {
namespace {

using test::World;

const std::wstring Key = L"Software\\Tarnwick\\Orvane\\ContextMenu\\HistoryMRU\\";
constexpr Hive User = Hive::CurrentUser;
using Texts = std::vector<std::wstring>;

struct MruTest : testing::Test {
  MruTest() { list.Path(Key); }

  void Fill(std::int32_t maximum, const Texts& newestFirst) {
    list.MaxFileCount(maximum);
    for (auto text = newestFirst.rbegin(); text != newestFirst.rend(); ++text) list.AddFile(*text);
  }
  Texts Entries() const {
    Texts texts;
    for (std::int32_t i = 1; i <= list.FileCount(); ++i) texts.push_back(list.File(i));
    return texts;
  }

  World world;
  clsMRU list{world.desktop.registry};
};

TEST_F(MruTest, AddFileMovesToTheTop) {
  const struct {
    Texts before;
    const wchar_t* added;
    Texts after;
  } cases[] = {
      {{}, L"a", {L"a"}},
      {{L"D:\\", L"C:\\Temp"}, L"c:\\temp", {L"c:\\temp", L"D:\\"}},
      {{L"a", L"b", L"c"}, L"a", {L"a", L"b", L"c"}},
      {{L"a", L"b", L"c"}, L"B", {L"B", L"a", L"c"}},
      {{L"1", L"2", L"3", L"4", L"5"}, L"6", {L"6", L"1", L"2", L"3", L"4"}},
      {{L"\u00c4"}, L"\u00e4", {L"\u00e4"}},
  };
  for (const auto& row : cases) {
    list.Reset();
    Fill(5, row.before);
    list.AddFile(row.added);
    EXPECT_EQ(Entries(), row.after) << row.added;
  }
}

TEST_F(MruTest, AListOfOneKeepsTheNewest) {
  Fill(1, {L"b", L"a"});
  EXPECT_EQ(Entries(), Texts{L"b"});
}

TEST_F(MruTest, AListWithoutRoomTakesNothing) {
  for (const std::int32_t maximum : {0, -1}) {
    Fill(maximum, {L"a"});
    EXPECT_EQ(list.FileCount(), 0);
    EXPECT_EQ(World::ErrorOf([&] { list.File(1); }), 9);
  }
}

TEST_F(MruTest, ASmallerMaximumKeepsWhatFits) {
  Fill(3, {L"a", L"b", L"c"});
  list.MaxFileCount(2);
  EXPECT_EQ(list.FileCount(), 3);
  EXPECT_EQ(list.File(2), L"b");
  EXPECT_EQ(World::ErrorOf([&] { list.File(3); }), 9);
  list.AddFile(L"d");
  EXPECT_EQ(list.File(1), L"d");
  EXPECT_EQ(list.File(2), L"a");
  EXPECT_TRUE(list.Save());
}

TEST_F(MruTest, LoadsWhatItSaved) {
  Fill(5, {L"a", std::wstring(L"b\0c", 3), L"d"});
  EXPECT_TRUE(list.Save());
  clsMRU again(world.desktop.registry);
  again.Path(Key);
  EXPECT_TRUE(again.Load(5));
  EXPECT_EQ(again.FileCount(), 3);
  EXPECT_EQ(again.File(2), std::wstring(L"b\0c", 3));
  EXPECT_EQ(again.File(4), L"");
  EXPECT_FALSE(again.FileExists(4));
}

TEST_F(MruTest, WithoutAUserInterfaceItSavesAtOnce) {
  list.UserInterface(false);
  Fill(5, {L"a"});
  EXPECT_EQ(world.desktop.registry.FindNumber(User, Key, L"MruFileCount"), 1u);
  EXPECT_EQ(world.desktop.registry.FindText(User, Key, L"Mru1"), L"a");
}

TEST_F(MruTest, CountsOutOfReason) {
  const struct {
    std::uint32_t stored;
    std::int32_t maximum;
    std::int32_t count;
  } cases[] = {{9, 5, 5},
               {3, 5, 3},
               {0xFFFFFFFF, 5, 0},
               {0x7FFFFFFF, 5, 5},
               {0x7FFFFFFF, 0x7FFFFFFF, clsMRU::Limit},
               {5, -1, 0}};
  for (const auto& row : cases) {
    world.desktop.registry.SetNumber(User, Key, L"MruFileCount", row.stored);
    world.desktop.registry.SetText(User, Key, L"Mru1", L"a");
    EXPECT_TRUE(list.Load(row.maximum));
    EXPECT_EQ(list.FileCount(), row.count) << row.stored << ' ' << row.maximum;
    EXPECT_LE(list.MaxFileCount(), clsMRU::Limit);
  }
}

TEST_F(MruTest, ForgetsWhatTheRegistryDoesNotHave) {
  Fill(5, {L"a", L"b"});
  EXPECT_TRUE(list.Load(5));
  EXPECT_EQ(list.FileCount(), 0);
  EXPECT_EQ(list.File(1), L"");
  world.desktop.registry.SetNumber(User, Key, L"MruFileCount", 2);
  world.desktop.registry.SetNumber(User, Key, L"Mru1", 3);
  EXPECT_TRUE(list.Load(5));
  EXPECT_EQ(Entries(), (Texts{L"", L""}));
}

TEST_F(MruTest, ResetEmptiesTheSlots) {
  Fill(2, {L"a", L"b"});
  list.Reset();
  EXPECT_EQ(list.FileCount(), 0);
  EXPECT_EQ(list.MaxFileCount(), 2);
  EXPECT_EQ(list.File(1), L"");
}

TEST(clsMRU, ShortensLongPaths) {
  const std::wstring forty(40, L'x');
  const std::wstring name32(32, L'n');
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"C:\\a.txt", L"C:\\a.txt"},
      {std::wstring(32, L'x'), std::wstring(32, L'x')},
      {forty, forty},
      {L"C:\\Documents and Settings\\user\\My Documents\\plan.txt",
       L"...\\user\\My Documents\\plan.txt"},
      {L"C:\\dir\\" + forty, L"...\\dir\\" + forty},
      {L"C:\\" + name32, L"C:\\" + name32},
      {L"C:\\d\\" + name32, L"...\\" + name32},
      {forty + L"\\a", forty + L"\\a"},
      {std::wstring(40, L'\\'), L"..." + std::wstring(33, L'\\')},
  };
  for (const auto& [text, shortened] : cases) {
    EXPECT_EQ(clsMRU::GetShortenedName(text), shortened) << shortened;
  }
}

TEST_F(MruTest, MenuCaptions) {
  Fill(3,
       {L"C:\\b.txt", L"C:\\Documents and Settings\\user\\My Documents\\plan.txt", L"C:\\a.txt"});
  EXPECT_EQ(list.MenuCaption(3, 3), L"&3 C:\\a.txt");
  EXPECT_EQ(list.MenuCaption(2, 7), L"&7 ...\\user\\My Documents\\plan.txt");
}

class FakeControl : public MenuControl {
 public:
  std::wstring TypeName() override { return typeName; }
  std::int32_t SubItemCount() override { return static_cast<std::int32_t>(items.size()); }
  std::wstring SubItemKey(std::int32_t position) override {
    return items.at(static_cast<std::size_t>(position) - 1).first;
  }
  void RemoveSubItem(const std::wstring& key) override {
    std::erase_if(items, [&](const auto& item) { return item.first == key; });
  }
  void InsertSubItem(const std::wstring& key, const std::wstring& caption,
                     const std::wstring& before) override {
    const auto place = std::find_if(items.begin(), items.end(),
                                    [&](const auto& item) { return item.first == before; });
    items.insert(place, {key, caption});
  }

  using Items = std::vector<std::pair<std::wstring, std::wstring>>;
  Items items = {{L"id_open", L"Open"}, {L"mru_7", L"old"}, {L"id_fileexit", L"Exit"}};
  std::wstring typeName = L"SmartItem";
};

TEST_F(MruTest, FillsAnAttachedMenu) {
  Fill(5, {L"a", L"", L"b"});
  FakeControl control;
  list.FileMenu(&control);
  for (int i = 0; i < 2; ++i) list.UpdateFileMenu(L"a");
  const FakeControl::Items expected = {{L"id_open", L"Open"},
                                       {L"mru_separator", L""},
                                       {L"mru_1", L"&1 a"},
                                       {L"mru_3", L"&3 b"},
                                       {L"id_fileexit", L"Exit"}};
  EXPECT_EQ(control.items, expected);
  FakeControl other;
  other.typeName = L"Other";
  list.FileMenu(&other);
  list.UpdateFileMenu(L"a");
  EXPECT_EQ(other.items.size(), 3u);
}

TEST_F(MruTest, EncipheredEntriesSurviveTheRegistryWithTheirZeros) {
  int withZero = 0;
  for (int i = 0; i < 200; ++i) {
    clsOrvaneData item;
    item.m_lType = clsOrvaneData::TypeFile;
    item.Location(L"C:\\Work\\Quarterly report, final " + std::to_wstring(i * i * 37) + L".docx");
    item.Caption(L"Quarterly report " + std::to_wstring(i));
    const std::wstring entry = world.tools.CreateHistoryMRU(item);
    withZero += entry.find(L'\0') != std::wstring::npos;
    Fill(5, {entry});
    list.Save();
    ASSERT_TRUE(list.Load(5));
    clsOrvaneData back;
    world.tools.BreakdownHistoryMRU(list.File(1), back);
    EXPECT_EQ(back.m_lType, item.m_lType);
    EXPECT_EQ(back.Location(), item.Location());
    EXPECT_EQ(back.Caption(), item.Caption());
  }
  EXPECT_GT(withZero, 0);
}

}  // namespace
}  // namespace orvane
