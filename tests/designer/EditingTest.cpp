#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "designer/Desk.h"
#include "designer/Monkey.h"
#include "menudoc/MenuDocument.h"

// Edits, commands and their way back.

namespace orvane::test {
namespace {

using designer::Direction;

/// What a window that follows the edits would show.
class Mirror : public designer::EditListener {
 public:
  void Inserted(MenuItem& item) override {
    m_shown.push_back(&item);
    Collect(item, m_shown);
  }
  void Removing(MenuItem& item) override {
    EXPECT_EQ(item.parent->children[item.Index()].get(), &item);
    for (const MenuItem* below : AllOf(item)) m_shown.erase(std::ranges::find(m_shown, below));
    m_shown.erase(std::ranges::find(m_shown, &item));
  }
  void Changed(MenuItem& item) override { EXPECT_TRUE(std::ranges::count(m_shown, &item)); }
  void Clearing() override { m_shown.clear(); }

  void ExpectAll(MenuItem& top) {
    Items items = AllOf(top);
    std::ranges::sort(items);
    std::ranges::sort(m_shown);
    EXPECT_EQ(items, m_shown);
  }

 private:
  Items m_shown;
};

class SequencesOfEdits : public testing::TestWithParam<unsigned> {};

TEST_P(SequencesOfEdits, AreUndoneToTheFirstMenuAndRedoneToTheLast) {
  for (unsigned sequence = 0; sequence < 500; ++sequence) {
    SCOPED_TRACE(sequence);
    Desk desk;
    Mirror mirror;
    mirror.Inserted(desk.Root());
    desk.document.Listen(&mirror);
    const std::vector<std::byte> first = desk.Bytes();
    Monkey monkey(desk, std::mt19937(GetParam() * 1000 + sequence));
    for (unsigned steps = 10 + sequence % 30; steps-- > 0;) monkey.Act();
    while (desk.Edits().NextRedo()) desk.Edits().Redo();
    const std::vector<std::byte> last = desk.Bytes();
    while (desk.Edits().NextUndo()) desk.Edits().Undo();
    ASSERT_EQ(desk.Bytes(), first);
    EXPECT_FALSE(desk.document.IsDirty());
    mirror.ExpectAll(desk.Top());
    while (desk.Edits().NextRedo()) desk.Edits().Redo();
    ASSERT_EQ(desk.Bytes(), last);
    mirror.ExpectAll(desk.Top());
    // What was built can be read, and reads the same.
    DefinitionFile file(last, desk.globals.codePage);
    const MenuItem::Owner again = designer::TreeOf(ReadDefinition(file, desk.globals.tools));
    ASSERT_EQ(desk.document.File().BytesOf(designer::DefinitionOf(*again)), last);
  }
}
INSTANTIATE_TEST_SUITE_P(Seeds, SequencesOfEdits, testing::Range(0u, 8u));

TEST(Moves, GoWhereTheArrowsPoint) {
  struct Row {
    std::vector<std::wstring> selected;
    Direction direction;
    std::wstring after;
  };
  const Row rows[] = {
      {{L"b"}, Direction::Up, L"b a p(c d) e"},
      {{L"a"}, Direction::Up, L"a b p(c d) e"},
      {{L"c"}, Direction::Up, L"a b c p(d) e"},
      {{L"d"}, Direction::Down, L"a b p(c) d e"},
      {{L"e"}, Direction::Down, L"a b p(c d) e"},
      {{L"e"}, Direction::In, L"a b p(c d e)"},
      {{L"b"}, Direction::In, L"a b p(c d) e"},
      {{L"c"}, Direction::Out, L"a b p(d) c e"},
      {{L"a"}, Direction::Out, L"a b p(c d) e"},
      {{L"a", L"b"}, Direction::Down, L"p(c d) a b e"},
      {{L"b", L"e"}, Direction::Up, L"b e a p(c d)"},
      {{L"c", L"p"}, Direction::Up, L"a p(c d) b e"},
  };
  for (const Row& row : rows) {
    Desk desk;
    for (const wchar_t* caption : {L"a", L"b"}) desk.Add(Record(Data::TypeFile, caption));
    MenuItem& popup = desk.Add(Record(Data::TypePopupMenu, L"p"));
    for (const wchar_t* caption : {L"c", L"d"}) desk.Add(Record(Data::TypeFile, caption), &popup);
    desk.Add(Record(Data::TypeFile, L"e"));
    Items items;
    const Items all = AllOf(desk.Root());
    for (const std::wstring& caption : row.selected)
      items.push_back(*std::ranges::find_if(
          all, [&](const MenuItem* item) { return item->data.Caption() == caption; }));
    Move(desk.Edits(), desk.Top(), items, row.direction);
    EXPECT_EQ(desk.Tree(), row.after);
  }
}

TEST(Moves, StayInWhatHoldsItemsAndOutOfThemselves) {
  Desk desk;
  MenuItem& popup = desk.Add(Record(Data::TypePopupMenu, L"p"));
  MenuItem& inner = desk.Add(Record(Data::TypePopupMenu, L"q"), &popup);
  MenuItem& file = desk.Add(Record(Data::TypeFile, L"f"));
  EXPECT_FALSE(CanMoveTo(desk.Top(), {&popup}, {&inner, 0}));
  EXPECT_FALSE(CanMoveTo(desk.Top(), {&inner}, {&file, 0}));
  EXPECT_FALSE(CanMoveTo(desk.Top(), {&file}, {&desk.Top(), 0}));  // beside the root
  EXPECT_FALSE(CanMoveTo(desk.Top(), {&desk.Root()}, {&popup, 0}));
  EXPECT_TRUE(CanMoveTo(desk.Top(), {&file}, {&inner, 0}));
}

TEST(Typing, IsOneStepAWordAndEndsWithASave) {
  Desk desk;
  MenuItem& item = desk.Add(Record(Data::TypeFile, L""));
  const auto type = [&](const wchar_t* text) {
    desk.Edits().Type(L"Change Caption", item, Record(Data::TypeFile, text));
  };
  for (const wchar_t* text : {L"W", L"Wo", L"Wor"}) type(text);
  desk.document.Save(MenuPath);
  for (const wchar_t* text : {L"Work", L"Works"}) type(text);
  EXPECT_TRUE(desk.document.IsDirty());
  desk.Edits().Undo();
  EXPECT_EQ(item.data.Caption(), L"Wor");
  EXPECT_FALSE(desk.document.IsDirty());
  desk.Edits().Undo();
  EXPECT_EQ(item.data.Caption(), L"");
  type(L"other");  // what was saved cannot be reached any more
  desk.Edits().Undo();
  EXPECT_TRUE(desk.document.IsDirty());
}

TEST(ClipboardText, GoesThroughAnotherProgramAndBack) {
  Desk desk;
  MenuItem& popup = desk.Add(Record(Data::TypePopupMenu, L"p \"\u0416\U0001F600\""));
  desk.Add(Record(Data::TypeFolder, L"a&b", L"C:\\Work, more"), &popup);
  const std::string text = CopyText(desk.Top(), {&popup});
  Paste(desk.Edits(), text, PlaceFor(desk.Top(), nullptr));
  EXPECT_EQ(CopyText(desk.Top(), {desk.Root().children[1].get()}), text);
  // A whole document stands for what it holds.
  Paste(desk.Edits(), R"({"caption": "r", "items": [{"type": "separator"}]})", {&desk.Root(), 0});
  EXPECT_TRUE(desk.Root().children[0]->data.IsTypeSeparator());
  Paste(desk.Edits(), CopyText(desk.Top(), {&desk.Root()}), {&desk.Root(), 0});
  EXPECT_EQ(desk.Root().children.size(), 6u);

  const Items before = AllOf(desk.Top());
  for (const char* rubbish : {"", "hello", "[{\"type\": \"nonsense\"}]", "{\"items\": 3}", "[",
                              "[{\"type\": \"file\", \"caption\": 7}]", "\xFF\xFE"})
    EXPECT_THROW(Paste(desk.Edits(), rubbish, {&desk.Root(), 0}), DocumentError) << rubbish;
  EXPECT_EQ(AllOf(desk.Top()), before);
}

TEST(LargeMenus, AreMovedAndRemovedAtOnce) {
  Desk desk;
  std::vector<Data> records(10000, Record(Data::TypeFile, L"file", L"C:\\file.txt"));
  const Items all = designer::Insert(desk.Edits(), std::move(records), {&desk.Root(), 0});
  MenuItem& popup = desk.Add(Record(Data::TypePopupMenu, L"p"));
  EXPECT_EQ(MoveTo(desk.Edits(), desk.Top(), all, {&popup, 0}).size(), all.size());
  EXPECT_EQ(popup.children.size(), all.size());
  Remove(desk.Edits(), desk.Top(), all);
  EXPECT_EQ(desk.Tree(), L"p");
  desk.Edits().Undo();
  desk.Edits().Undo();
  EXPECT_EQ(desk.Root().children.size(), 10001u);
}

TEST(DeepMenus, GoAsDeepAsTheFileMayAndNoFurther) {
  Desk desk;
  MenuItem* deepest = &desk.Root();
  for (int i = 0; i < 100; ++i) deepest = &desk.Add(Record(Data::TypePopupMenu, L"p"), deepest);
  desk.document.Save(MenuPath);
  desk.document.Open(MenuPath);
  EXPECT_EQ(HeightOf(desk.Root()), 100u);
  // Each time twice as deep, until that is refused.
  for (int i = 0; i < 6; ++i) {
    MenuItem* inner = &desk.Root();
    while (!inner->children.empty()) inner = inner->children.front().get();
    Paste(desk.Edits(), CopyText(desk.Top(), {desk.Root().children.front().get()}), {inner, 0});
  }
  EXPECT_EQ(HeightOf(desk.Root()), 800u);
  desk.document.Save(MenuPath);
  desk.document.Open(MenuPath);
}

TEST(Finding, GoesRoundTheMenuInAnyCase) {
  Desk desk;
  desk.AddSome();
  MenuItem* editor = desk.Find(L"EDITOR.EXE");
  ASSERT_TRUE(editor);
  EXPECT_EQ(editor->data.Caption(), L"Editor");
  MenuItem* work = FindText(desk.Top(), L"wor", editor);
  EXPECT_EQ(work->data.Caption(), L"Work");
  EXPECT_EQ(FindText(desk.Top(), L"tools", work)->data.Caption(), L"&Tools");
  EXPECT_EQ(FindText(desk.Top(), L"nowhere", work), nullptr);
}

}  // namespace
}  // namespace orvane::test
