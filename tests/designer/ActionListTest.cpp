#include "designer/ActionList.h"

#include "designer/Desk.h"
#include "designer/WindowTest.h"

// The actions of a file: what is edited reaches the handler, what is not stays.

namespace orvane::test {
namespace {

using designer::ActionList;
using designer::DescribeWindow;
using designer::TakeWindow;

constexpr const wchar_t* Path = L"C:\\Orvane\\CustomActions.ini";
constexpr std::string_view Two =
    "; "
    "mine\r\n[one]\r\nType=1\r\nOrder=10\r\nDescription=d\r\nActions=x\r\nForeign=1\r\nOptions="
    "1\r\n"
    "[two]\r\nType=1\r\nOrder=20\r\nActions=\" y\"\r\nOptions=1\r\n";

struct ActionDesk : Desk {
  explicit ActionDesk(std::string_view text = Two) {
    desktop.files.AddFolder(L"C:\\Orvane");
    if (!text.empty()) desktop.files.AddFile(Path, text);
    list.Open(Path);
  }

  template <class Edit>
  void Change(std::size_t place, Edit edit) {
    CustomAction action = list.Actions()[place];
    edit(action);
    list.Change(place, std::move(action));
  }
  /// Names and scripts as the handler finds them, in the order in which it tries them.
  std::wstring Tried() {
    clsCustomActions actions(globals.actionServices);
    std::vector<std::wstring> ids;
    actions.LoadEx(ids, CustomAction::TypeAny, Path, false);
    std::wstring line;
    for (const std::wstring& id : ids) {
      actions.Load(id, Path);
      line += id + L"=" + actions.m_szActions + L";";
    }
    return line;
  }

  ActionList list{desktop.files, globals.actionServices};
};

TEST(ActionList, WritesWhatWasEditedAndLeavesTheRest) {
  ActionDesk desk;
  EXPECT_FALSE(desk.list.IsDirty());
  desk.Change(desk.list.Duplicate(1), [](CustomAction& action) { action.m_szActions = L"\"q\""; });
  EXPECT_EQ(desk.list.Move(2, true), 1u);
  EXPECT_EQ(desk.list.Move(0, true), 0u);
  desk.Change(desk.list.Add(), [](CustomAction& action) { action.m_szActions = L"z "; });
  EXPECT_TRUE(desk.list.IsDirty());
  desk.list.Save();
  EXPECT_FALSE(desk.list.IsDirty());
  EXPECT_EQ(desk.Tried(), L"one=x;two 2=\"q\";two= y;new action=z ;");
  const std::string text = *desk.desktop.files.Content(Path);
  EXPECT_TRUE(
      text.starts_with("; mine\r\n[one]\r\nType=1\r\nOrder=1\r\nDescription=d\r\n"
                       "Actions=x\r\nForeign=1\r\n"));
  EXPECT_EQ(*desk.desktop.files.Content(std::wstring(Path) + L".bak"), Two);
  desk.Change(1, [](CustomAction& action) { action.m_szId = L"TWO"; });
  EXPECT_TRUE(ErrorOf([&] { desk.list.Save(); }).ends_with(L"two actions have the name \"two\"."));
  desk.list.Remove(2);
  desk.list.Remove(2);
  desk.list.Save();
  EXPECT_EQ(desk.Tried(), L"one=x;TWO=\"q\";");
}

TEST(ActionList, KeepsEveryTextOrSaysThatItCannot) {
  const std::wstring texts[] = {L"\x416\x4e2d", L"\xe9[orv_item]", L"a=b;c", L"[x]",
                                L"'",           L"\" \""};
  for (const std::wstring& text : texts) {
    ActionDesk desk("[caf\xE9]\r\nType=1\r\nActions=\xE9\r\n");
    desk.Change(desk.list.Add(), [&](CustomAction& action) {
      action.m_szId = action.m_szCaption = action.m_szActions = text;
    });
    desk.list.Save();
    EXPECT_EQ(desk.Tried(), L"caf\xe9=\xe9;" + text + L"=" + text + L";");
  }
  for (const wchar_t* name : {L"a\r\nb", L"", L" "}) {
    ActionDesk desk;
    desk.Change(0, [&](CustomAction& action) { action.m_szId = name; });
    EXPECT_NE(ErrorOf([&] { desk.list.Save(); }), L"") << name;
    EXPECT_EQ(*desk.desktop.files.Content(Path), Two);
  }
}

TEST(ActionList, TakesOddFilesWithoutLosingThem) {
  ActionDesk desk("[a]\r\nType=1\r\nOrder=x\r\n[b]\r\nOrder=-1\r\n[A]\r\nhidden=1\r\n");
  EXPECT_EQ(desk.list.Findings()[0].field, L"Order");
  EXPECT_EQ(desk.list.Findings()[1].action, L"A");
  EXPECT_FALSE(desk.list.IsDirty());
  desk.list.Save();  // the number that is none becomes one
  EXPECT_EQ(desk.Tried(), L"b=;a=;");

  ActionDesk hiding("[a]\r\nType=1\r\n[]\r\n[b]\r\nType=1\r\n");
  hiding.list.Add();
  EXPECT_NE(ErrorOf([&] { hiding.list.Save(); }), L"") << "nobody would find it behind []";

  ActionDesk none("");
  EXPECT_TRUE(none.list.Actions().empty());
  none.list.Add();
  none.list.Save();
  EXPECT_EQ(none.Tried(), L"new action=;");
  EXPECT_NE(ErrorOf([&] { none.list.Open(L"CustomActions.ini"); }), L"");
  EXPECT_EQ(none.list.Path(), Path);
}

TEST(ActionList, LosesNothingWhenTheFileCannotBeWrittenOrChanges) {
  using Trouble = memory::FileSystem::Trouble;
  for (const Trouble trouble : {Trouble::ReadOnly, Trouble::Full, Trouble::Fixed}) {
    ActionDesk desk;
    desk.list.Remove(0);
    desk.desktop.files.Add(trouble, L"C:\\Orvane");
    EXPECT_TRUE(ErrorOf([&] { desk.list.Save(); }).starts_with(Path));
    EXPECT_EQ(*desk.desktop.files.Content(Path), Two);
    EXPECT_TRUE(desk.list.IsDirty());
  }
  ActionDesk desk;
  EXPECT_FALSE(desk.list.ChangedMeanwhile());
  desk.desktop.files.AddFile(Path, "other");
  EXPECT_TRUE(desk.list.ChangedMeanwhile());
}

TEST(WindowTest, SaysWhichCriterionOfWhichWindowPassed) {
  ActionDesk desk;
  memory::Windows& windows = desk.desktop.windows;
  clsProcess& process = desk.globals.actionServices.process;
  desk.desktop.processes.running = {{.id = 12, .executable = L"C:\\Tools\\draw.exe"}};
  const WindowHandle frame =
      windows.Add({.className = L"Frame", .caption = L"Plan - Draw", .process = 12});
  const WindowHandle dialog =
      windows.Add({.parent = frame, .className = L"#32770", .caption = L"Save As", .process = 12});
  const auto tested = [&](const CustomAction& action, WindowHandle window) {
    const designer::WindowTest test = designer::TestWindow(action, windows, process, window);
    std::wstring line = test.caption + L": " + test.outcome;
    for (const std::wstring& criterion : test.criteria) line += L"|" + criterion;
    return line;
  };
  CustomAction action;
  EXPECT_EQ(tested(action, frame),
            L"Plan - Draw: does not match: nothing is tested|not tested|not tested|not tested");
  TakeWindow(action, windows, process, dialog);
  EXPECT_EQ(tested(action, dialog),
            L"Save As: matches|passes: C:\\Tools\\draw.exe|passes: Save As|passes: #32770");
  EXPECT_EQ(tested(action, frame),
            L"Plan - Draw: does not match: Caption|passes: C:\\Tools\\draw.exe|fails: Plan - Draw|"
            L"fails: Frame");
  action.m_szCaption = L"plan";
  EXPECT_EQ(tested(action, dialog),
            L"Save As: matches|passes: C:\\Tools\\draw.exe|passes in a window above: Plan - Draw|"
            L"passes: #32770");
  const WindowHandle bare = windows.Add({.className = L"Bare", .process = 99});
  TakeWindow(action, windows, process, bare);
  EXPECT_EQ(tested(action, bare), L": matches|not tested|not tested|passes: Bare");
  EXPECT_EQ(DescribeWindow(windows, process, bare), L"(no caption) - unknown program, class Bare");
  const CustomAction before = action;
  windows.Remove(bare);
  TakeWindow(action, windows, process, bare);
  EXPECT_EQ(action, before) << "a window that is gone changes nothing";
}

}  // namespace
}  // namespace orvane::test
