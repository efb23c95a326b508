#include "menudata/clsMRU.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "menudata/MenuControl.h"
#include "menudata/World.h"

namespace orvane {
namespace {

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

  memory::Desktop desktop;
  clsMRU list{desktop.registry};
};

TEST_F(MruTest, AddFileMovesToTheTop) {
  const struct {
    std::int32_t maximum;
    Texts before;
    const wchar_t* added;
    Texts after;
  } cases[] = {
      {5, {}, L"a", {L"a"}},
      {5, {L"D:\\", L"C:\\Temp"}, L"c:\\temp", {L"c:\\temp", L"D:\\"}},
      {5, {L"a", L"b", L"c"}, L"B", {L"B", L"a", L"c"}},
      {5, {L"1", L"2", L"3", L"4", L"5"}, L"6", {L"6", L"1", L"2", L"3", L"4"}},
      {5, {L"\u00c4"}, L"\u00e4", {L"\u00e4"}},
      {1, {L"a"}, L"b", {L"b"}},
      {0, {}, L"a", {}},
  };
  for (const auto& row : cases) {
    list.Reset();
    Fill(row.maximum, row.before);
    list.AddFile(row.added);
    EXPECT_EQ(Entries(), row.after) << row.added;
  }
}

TEST_F(MruTest, ASmallerMaximumKeepsWhatFits) {
  Fill(3, {L"a", L"b", L"c"});
  list.MaxFileCount(2);
  EXPECT_EQ(test::ErrorOf([&] { list.File(3); }), 9);
  list.AddFile(L"d");
  EXPECT_EQ((Texts{list.File(1), list.File(2)}), (Texts{L"d", L"a"}));
  EXPECT_TRUE(list.Save());
}

TEST_F(MruTest, LoadsWhatAListWithoutAUserInterfaceSavedAtOnce) {
  const Texts entries = {L"a", std::wstring(L"b\0c", 3), L"d"};
  list.UserInterface(false);
  Fill(5, entries);
  EXPECT_EQ(desktop.registry.FindText(User, Key, L"Mru1"), L"a");
  list.Reset();
  EXPECT_TRUE(list.Load(5));
  EXPECT_EQ(Entries(), entries);
}

TEST_F(MruTest, CountsOutOfReason) {
  const struct {
    std::uint32_t stored;
    std::int32_t maximum, count;
  } rows[] = {{9, 5, 5}, {0xFFFFFFFF, 5, 0}, {0x7FFFFFFF, 0x7FFFFFFF, clsMRU::Limit}, {5, -1, 0}};
  for (const auto& row : rows) {
    desktop.registry.SetNumber(User, Key, L"MruFileCount", row.stored);
    EXPECT_TRUE(list.Load(row.maximum));
    EXPECT_EQ(list.FileCount(), row.count) << row.stored << ' ' << row.maximum;
    EXPECT_LE(list.MaxFileCount(), clsMRU::Limit);
  }
}

TEST_F(MruTest, ForgetsWhatTheRegistryDoesNotHave) {
  Fill(5, {L"a", L"b"});
  desktop.registry.SetNumber(User, Key, L"MruFileCount", 2);
  desktop.registry.SetNumber(User, Key, L"Mru1", 3);
  EXPECT_TRUE(list.Load(5));
  EXPECT_EQ(Entries(), (Texts{L"", L""}));
}

TEST(clsMRU, ShortensLongPaths) {
  const std::wstring letters(40, L'x');
  const std::wstring name(32, L'n');
  const std::pair<std::wstring, std::wstring> rows[] = {
      {std::wstring(32, L'\\'), std::wstring(32, L'\\')},
      {std::wstring(40, L'\\'), L"..." + std::wstring(33, L'\\')},
      {letters, letters},
      {L"C:\\dir\\" + letters, L"...\\dir\\" + letters},
      {L"C:\\" + name, L"C:\\" + name},
      {L"C:\\d\\" + name, L"...\\" + name},
  };
  for (const auto& [text, shortened] : rows)
    EXPECT_EQ(clsMRU::GetShortenedName(text), shortened) << shortened;
}

class FakeControl : public MenuControl {
 public:
  std::wstring TypeName() override { return L"SmartItem"; }
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
}

}  // namespace
}  // namespace orvane
