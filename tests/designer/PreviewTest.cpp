#include <gtest/gtest.h>

#include "designer/Preview.h"

#include "commands/TaskText.h"
#include "designer/Desk.h"
#include "designer/Labels.h"

// What the preview shows and says.

namespace orvane::test {
namespace {

using designer::Preview;
using designer::Sample;

constexpr const wchar_t* NotShown = L"(not in the menu)";

/// A menu with one item, previewed over a desktop on which nothing must change.
struct Scene {
  explicit Scene(const Data& data) {
    desk.desktop.files.AddFile(L"C:\\Work\\a b.txt");
    desk.desktop.files.AddFolder(L"C:\\Target");
    desk.Add(data);
  }
  ~Scene() {
    EXPECT_TRUE(desk.desktop.effects.All().empty());
    EXPECT_EQ(desk.desktop.gdi.Live(), 0u);
    EXPECT_EQ(desk.desktop.menus.LiveCount(), 0u);
  }

  std::wstring Outcome(const std::wstring& caption) {
    Preview preview(desk.desktop.Bundle(), desk.Bytes(), sample);
    const MenuHandle menu = desk.desktop.menus.CreatePopup();
    preview.Build(menu);
    std::wstring outcome = NotShown;
    for (const MenuHandle shown : {menu, preview.Handler().State().rootMenu}) {
      for (const MenuEntry& entry : desk.desktop.menus.Entries(shown))
        if (entry.caption == caption && entry.submenu == MenuHandle::None)
          outcome = preview.Outcome(static_cast<std::int32_t>(entry.id));
    }
    desk.desktop.menus.Destroy(menu);
    return outcome;
  }

  Desk desk;
  Sample sample{.folder = L"C:\\Work", .names = {L"a b.txt"}};
};

TEST(Outcomes, SayWhatTheCommandDoesAndDoNothing) {
  Data task = Record(Data::TypeSelectionTask, L"x", L"C:\\Work");
  task.m_lSelection_Options = Data::SelectionOptions_ShowAlways | Data::SelectionOptions_Clipboard |
                              Data::SelectionOptions_QIS;
  task.m_szSelection_Command = L"edit.exe";
  task.m_szSelection_Parms = L"/open [orv_selection]";
  task.m_szSelection_File = L"C:\\list.txt";
  Data filtered = task;
  filtered.m_szSelection_Filter = L"*.doc";
  Data move = Record(Data::TypeCopyToX, L"x", L"C:\\Target");
  move.m_lCopyToX_Options = Data::CopyToXOptions_Move;
  Data action = Record(Data::TypeCustomAction, L"x");
  action.m_szAction_Actions = L"ab[orv_pause 5000]{TAB}";

  struct Row {
    Data data;
    std::wstring caption;
    std::wstring outcome;  // or a part of it
  };
  const Row rows[] = {
      {Record(Data::TypeFile, L"x", L"C:\\Work\\a b.txt"), L"x", L"Opens C:\\Work\\a b.txt"},
      {Record(Data::TypeFolder, L"x", L"C:\\Target"), L"x", L"C:\\Target"},
      {move, L"x", L"Moves 1 selected item(s) to C:\\Target."},
      {action, L"x",
       L"Types the keys \"ab\".\nWaits 5000 milliseconds.\nTypes the keys \"{TAB}\"."},
      {task, L"x",
       L"Puts this on the clipboard: \"\"C:\\Work\\a b.txt\"\"\nWrites the file C:\\list.txt.\n"
       L"Opens edit.exe with the parameters \"/open \"C:\\Work\\a b.txt\"\" in the folder "
       L"C:\\Work."},
      {filtered, L"x", L"qualified nothing!"},
      {move, L"Copy to Clipboard", L"Puts this on the clipboard: \"C:\\Work\\a b.txt"},
      {move, L"Copy to...", L"Asks for a folder"},
      {move, L"Command Prompt Here", L"Starts "},
      {move, L"&Designer...", L"Opens C:\\Program Files\\Orvane\\designer.exe"},
      {move, L"&Add To Quick Access", L""},
  };
  for (const Row& row : rows) {
    Scene scene(row.data);
    const std::wstring outcome = scene.Outcome(row.caption);
    EXPECT_NE(outcome, NotShown);
    EXPECT_NE(outcome.find(row.outcome), std::wstring::npos)
        << std::string(row.caption.begin(), row.caption.end()) << ": "
        << std::string(outcome.begin(), outcome.end());
  }
}

TEST(Preview, ShowsTasksForTheSampleAndNeverLogs) {
  Data task = Record(Data::TypeSelectionTask, L"x");
  task.m_lSelection_Options = Data::SelectionOptions_ShowMultiple;
  Scene scene(task);
  scene.desk.desktop.registry.SetNumber(Hive::CurrentUser, L"Software\\Tarnwick\\Orvane\\",
                                        L"DebugEnable", 1);
  EXPECT_EQ(scene.Outcome(L"x"), NotShown);
  scene.sample = designer::SampleOf({L"C:\\Work\\a b.txt", L"C:\\Work\\c"});
  EXPECT_NE(scene.Outcome(L"x"), NotShown);
  scene.sample.names.clear();
  EXPECT_EQ(scene.Outcome(L"x"), NotShown);
}

TEST(TaskText, IsTheCommandLineAndTheListOfTheSample) {
  Desk desk;
  Data task = Record(Data::TypeSelectionTask, L"x");
  task.m_szSelection_Command = L"edit.exe";
  task.m_szSelection_Parms = L"[orv_selection]";
  task.m_szSelection_CmdSuffix = L" ";
  task.m_szSelection_FileSuffix = L"\\n";
  task.m_szSelection_Filter = L"*.txt";
  const Sample sample = designer::SampleOf({L"C:\\a.txt", L"C:\\b.doc", L"C:\\c.TXT"});
  EXPECT_EQ(sample.Text(), L"3 items in C:\\");
  designer::SampleSelection selection(sample);
  const TaskText text =
      TaskTextOf(task, selection, false, desk.desktop.files, desk.globals.actionServices);
  EXPECT_EQ(text.CommandLine(task), L"edit.exe C:\\a.txt C:\\c.TXT ");
  EXPECT_EQ(text.fileList, L"C:\\a.txt\r\nC:\\c.TXT\r\n");
}

TEST(Labels, AreWordsWithALetterOfTheirOwn) {
  std::vector<std::wstring> labels{designer::LabelOf("commandPrefix"),
                                   designer::LabelOf("commandSuffix"), L"C", L"123"};
  designer::AddAccessKeys(labels, L"o");
  EXPECT_EQ(labels,
            (std::vector<std::wstring>{L"&Command prefix", L"Co&mmand suffix", L"C", L"&123"}));
}

}  // namespace
}  // namespace orvane::test
