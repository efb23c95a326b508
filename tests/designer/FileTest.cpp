#include <gtest/gtest.h>

#include "designer/Desk.h"
#include "shellext/ContextMenuHandler.h"

// Opening and saving: what was there is never lost.

namespace orvane::test {
namespace {

TEST(SavedMenu, IsTheOneThatTheHandlerShows) {
  Desk desk;
  desk.AddSome();
  desk.document.Save(MenuPath);
  ContextMenuHandler handler(desk.globals);
  handler.IShellExtInit_Initialize({}, nullptr, 0);
  const MenuHandle menu = desk.desktop.menus.CreatePopup();
  handler.IContextMenu_QueryContextMenuEx(menu, 0, 1, 30000, 0);
  std::vector<std::wstring> shown;
  for (const MenuEntry& entry : desk.desktop.menus.Entries(handler.State().rootMenu)) {
    shown.push_back(entry.caption);
    if (entry.submenu == MenuHandle::None) continue;
    for (const MenuEntry& inner : desk.desktop.menus.Entries(entry.submenu))
      shown.push_back(L"> " + inner.caption);
  }
  shown.resize(4);
  EXPECT_EQ(shown, (std::vector<std::wstring>{L"&Tools", L"> Editor", L"", L"Work"}));
  desk.desktop.menus.Destroy(menu);
}

TEST(Saving, KeepsThePreviousFileAndSaysWhatIsUnsaved) {
  Desk desk;
  EXPECT_EQ(desk.document.Title(), L"Untitled - Orvane Designer");
  desk.document.Save(MenuPath);
  const auto first = desk.desktop.files.Content(MenuPath);
  desk.AddSome();
  EXPECT_EQ(desk.document.Title(), L"*Default.cfg - Orvane Designer");
  desk.document.Save(MenuPath);
  EXPECT_EQ(desk.document.Title(), L"Default.cfg - Orvane Designer");
  EXPECT_EQ(desk.desktop.files.Content(std::wstring(MenuPath) + L".bak"), first);
  EXPECT_FALSE(desk.desktop.files.Exists(std::wstring(MenuPath) + L".new1"));
}

TEST(Saving, ThatFailsSaysWhereAndLosesNothing) {
  using Trouble = memory::FileSystem::Trouble;
  for (const Trouble trouble : {Trouble::ReadOnly, Trouble::Full}) {
    Desk desk;
    desk.document.Save(MenuPath);
    const auto before = desk.desktop.files.Content(MenuPath);
    desk.AddSome();
    desk.desktop.files.Add(trouble, L"C:\\Program Files\\Orvane");
    EXPECT_TRUE(ErrorOf([&] { desk.document.Save(MenuPath); }).starts_with(MenuPath));
    EXPECT_EQ(desk.desktop.files.Content(MenuPath), before);
    EXPECT_TRUE(desk.document.IsDirty());
    desk.document.Save(L"C:\\elsewhere.cfg");
    EXPECT_FALSE(desk.document.IsDirty());
  }
}

TEST(Saving, LeavesEveryFileWholeWhicheverCallFailsAndWhereverItAllEnds) {
  const std::wstring paths[] = {MenuPath, std::wstring(MenuPath) + L".bak", L"C:\\menu.json"};
  using Contents = std::vector<std::optional<std::string>>;
  for (const bool ends : {false, true}) {
    Contents whole;
    std::size_t calls = 0;
    for (std::size_t n = 0; n <= calls; ++n) {
      SCOPED_TRACE(testing::Message() << "call " << n << ends);
      Desk desk;
      desk.document.Save(MenuPath);
      desk.AddSome();
      desk.desktop.files.AddFile(paths[2], "old");
      const auto contents = [&] {
        Contents all;
        for (const std::wstring& path : paths) all.push_back(desk.desktop.files.Content(path));
        return all;
      };
      const Contents before = contents();
      memory::Faults& faults = desk.desktop.faults;
      ends ? faults.FailFrom(n) : faults.FailCall(n);
      const bool saved = ErrorOf([&] { desk.document.Save(MenuPath); }).empty();
      const bool written =
          ErrorOf([&] { desk.document.Export(paths[2], desk.desktop.files); }).empty();
      if (n == 0) calls = faults.Calls();
      faults.FailCall(0);
      const Contents after = contents();
      if (n == 0) whole = after;
      for (std::size_t i = 0; i < 3; ++i)
        EXPECT_TRUE(after[i] == before[i] || after[i] == whole[i]) << i;
      EXPECT_TRUE(!saved || after[0] == whole[0]);
      EXPECT_TRUE(!written || after[2] == whole[2]);
      EXPECT_EQ(desk.document.IsDirty(), !saved);
    }
  }
}

TEST(Saving, RefusesWhatTheCodePageDoesNotHave) {
  Desk desk;
  desk.document.Save(MenuPath);
  const auto before = desk.desktop.files.Content(MenuPath);
  desk.AddSome();
  desk.Add(Record(Data::TypeFile, L"\x416"));
  try {
    desk.document.Save(MenuPath);
    FAIL();
  } catch (const UnwritableText& error) {
    EXPECT_EQ(desk.document.ItemAt(error.Item())->data.Caption(), L"\x416");
  }
  EXPECT_EQ(desk.desktop.files.Content(MenuPath), before);
}

TEST(Opening, SaysWhatIsWrongAndKeepsWhatIsOpen) {
  Desk desk;
  desk.AddSome();
  const std::vector<std::byte> before = desk.Bytes();
  for (const std::string name :
       {"header", "item-header", "parent", "truncated", "version", "count"}) {
    const std::wstring path = L"C:\\" + std::wstring(name.begin(), name.end()) + L".cfg";
    desk.desktop.files.AddFile(path, TextOfFile(ORVANE_TEST_DATA "/corrupt-" + name + ".cfg"));
    const std::wstring said = ErrorOf([&] { desk.document.Open(path); });
    EXPECT_TRUE(said.starts_with(path + L": ")) << name;
    EXPECT_EQ(desk.Bytes(), before) << name;
    EXPECT_EQ(desk.document.Title(), L"*Untitled - Orvane Designer");
  }
  EXPECT_EQ(ErrorOf([&] { desk.document.Open(L"C:\\none.cfg"); }),
            L"C:\\none.cfg cannot be read: it is not there.");
  desk.desktop.files.AddFile(L"C:\\empty.cfg");
  desk.document.Open(L"C:\\empty.cfg");
  EXPECT_EQ(desk.Tree(), L"");
}

TEST(Opening, GivesTheSameBytesBackWhateverTheirCodePageWas) {
  for (const std::string name : {"every-kind", "root-only", "empty-captions", "deep"}) {
    Desk desk;
    const std::string content = TextOfFile(ORVANE_TEST_DATA "/" + name + ".cfg");
    desk.desktop.files.AddFile(MenuPath, content);
    desk.document.Open(MenuPath);
    desk.document.Save(L"C:\\copy.cfg");
    EXPECT_EQ(desk.desktop.files.Content(L"C:\\copy.cfg"), content) << name;
  }
  Desk desk;
  const auto characters = desk.desktop.system.AnsiCharacters();
  const std::wstring all(characters.begin(), characters.end());
  desk.Add(Record(Data::TypeFile, all));
  desk.document.Save(MenuPath);
  desk.document.Open(MenuPath);
  EXPECT_EQ(desk.Root().children[0]->data.Caption(), all);
}

TEST(Opening, TakesALargeFile) {
  Desk desk;
  const Data data = Record(Data::TypeFile, std::wstring(2000, L'c'), std::wstring(60000, L'l'));
  designer::Insert(desk.Edits(), std::vector<Data>(340, data), {&desk.Root(), 0});
  desk.document.Save(MenuPath);
  EXPECT_GT(desk.desktop.files.Content(MenuPath)->size(), 20u << 20);
  desk.document.Open(MenuPath);
  EXPECT_EQ(desk.Root().children.size(), 340u);
}

TEST(AnotherProgram, IsNoticedWhenItWritesOrRemovesTheFile) {
  Desk desk;
  designer::MenuFile& file = desk.document.File();
  EXPECT_FALSE(file.ChangedMeanwhile());  // in no file yet
  desk.document.Save(MenuPath);
  EXPECT_FALSE(file.ChangedMeanwhile());
  desk.desktop.files.AddFile(MenuPath, "other");
  EXPECT_TRUE(file.ChangedMeanwhile());
  file.Acknowledge();
  EXPECT_FALSE(file.ChangedMeanwhile());
  desk.desktop.files.Remove(MenuPath);
  EXPECT_TRUE(file.ChangedMeanwhile());
}

TEST(Documents, AreTakenAsOneStepAndGivenBack) {
  Desk desk;
  desk.AddSome();
  const std::vector<std::byte> before = desk.Bytes();
  desk.document.Export(L"C:\\menu.json", desk.desktop.files);
  desk.desktop.files.AddFile(L"C:\\bad.json", R"({"items": [{"type": "fiel"}]})");
  EXPECT_ANY_THROW(desk.document.Import(L"C:\\bad.json", desk.desktop.files));
  EXPECT_EQ(desk.Bytes(), before);
  Remove(desk.Edits(), desk.Top(), {desk.Root().children[0].get()});
  desk.document.Import(L"C:\\menu.json", desk.desktop.files);
  EXPECT_EQ(desk.Bytes(), before);
  desk.Edits().Undo();
  EXPECT_EQ(desk.Tree(), L"Work");  // behind the line
}

}  // namespace
}  // namespace orvane::test
