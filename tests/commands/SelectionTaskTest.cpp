#include "commands/SelectionTask.h"

#include <algorithm>

#include "Scene.h"

namespace orvane::test {
namespace {

class SelectionTask : public testing::Test, protected Scene {
 protected:
  SelectionTask() {
    desktop.files.AddFile(L"C:\\Notes\\a.txt");
    desktop.files.AddFile(L"C:\\Notes\\b b.doc");
    desktop.files.AddFolder(L"C:\\Notes\\Sub");
    desktop.files.AddFolder(L"C:\\Lists");
    Select({L"C:\\Notes\\a.txt", L"C:\\Notes\\b b.doc"});
    item.m_lType = Data::TypeSelectionTask;
    item.Caption(L"My &task");
  }

  Lines Run(bool shift = false, bool ctrl = false) {
    ExecuteSelectionTask(Context(), WindowHandle::None, item, shift, ctrl);
    return Effects();
  }

  Data item;
};

TEST_F(SelectionTask, CommandGetsTheNamesRunTogether) {
  item.m_szSelection_Command = L"C:\\Tools\\show.exe";
  item.m_szSelection_Parms = L"[orv_selection]";
  item.m_szSelection_WorkingDir = L"C:\\Tools";
  item.m_szSelection_CmdPrefix = L"\"";
  item.m_szSelection_CmdSuffix = L"\"";
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx file=C:\\Tools\\show.exe "
                          "parameters=\"C:\\Notes\\a.txt\"\"C:\\Notes\\b b.doc\" "
                          "directory=C:\\Tools show=5"}));
  Select({L"C:\\"});
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx file=C:\\Tools\\show.exe parameters=\"C:\\\\\" "
                          "directory=C:\\Tools show=5"}));
  item.m_szSelection_Parms = L"/x [orv_item] [orv_selection";  // no end: goes as it is
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx file=C:\\Tools\\show.exe "
                          "parameters=/x [orv_item] [orv_selection directory=C:\\Tools show=5"}));
}

TEST_F(SelectionTask, EscapesInPrefixesAndSuffixesAreTreatedForGood) {
  item.m_szSelection_FilePrefix = L"\\t";
  item.m_szSelection_FileSuffix = L"\\n";
  item.m_szSelection_File = L"C:\\Lists\\list.txt";
  EXPECT_EQ(Run(), (Lines{"WriteFile path=C:\\Lists\\list.txt "
                          "text=<9>C:\\Notes\\a.txt<13><10><9>C:\\Notes\\b b.doc<13><10>"}));
  EXPECT_EQ(item.m_szSelection_FileSuffix, L"\r\n");
}

TEST_F(SelectionTask, DeliversInOrderAndEachOnItsOwn) {
  item.m_lSelection_Options = Data::SelectionOptions_Clipboard;
  item.m_szSelection_FileSuffix = L";";
  item.m_szSelection_File = L"C:\\Lists\\list.txt";
  item.m_szSelection_Command = L"C:\\run.exe";
  const std::string names = "C:\\Notes\\a.txt;C:\\Notes\\b b.doc;";
  EXPECT_EQ(Run(),
            (Lines{"SetClipboard text=" + names, "WriteFile path=C:\\Lists\\list.txt text=" + names,
                   "ShellExecuteEx file=C:\\run.exe show=5"}));

  desktop.clipboard.heldOpen = true;
  desktop.files.Add(Trouble::ReadOnly, L"C:\\Lists");
  EXPECT_EQ(Run(),
            (Lines{Warning("The clipboard is in use by another program. Please try again in a "
                           "moment."),
                   Warning("Could not open the selection file 'C:\\Lists\\list.txt'<13><10><13>"
                           "<10>Error 75: Path/file access error"),
                   "ShellExecuteEx file=C:\\run.exe show=5"}));

  desktop.clipboard.heldOpen = false;
  item.m_szSelection_File = L"C:\\Full\\list.txt";
  desktop.files.AddFolder(L"C:\\Full");
  desktop.files.Add(Trouble::Full, L"C:\\Full");
  const Lines effects = Run();
  EXPECT_NE(
      std::ranges::find(effects, Warning("Could not write the selection file 'C:\\Full\\list.txt'"
                                         "<13><10><13><10>Error 61: Disk full")),
      effects.end());
}

TEST_F(SelectionTask, AListThatLacksSomethingIsToldOfBeforeTheTaskStarts) {
  item.m_szSelection_Command = L"C:\\run.exe";
  item.m_szSelection_Filter = L"*.txt";
  Select({L"\\\\silent\\share\\a.txt"});
  desktop.files.Stall(L"\\\\silent\\share", 60'000);
  for (const bool goesOn : {true, false}) {
    desktop.answers.Add(goesOn ? L"ok" : L"cancel");
    const Lines effects = Run();
    ASSERT_EQ(effects.size(), goesOn ? 2u : 1u);
    EXPECT_TRUE(effects[0].starts_with("MessageBox"));
  }
}

TEST_F(SelectionTask, FilterThatTakesNothingIsSaid) {
  item.m_szSelection_Filter = L"*.log,*.bmp";
  item.m_szSelection_Command = L"C:\\run.exe";
  item.m_lSelection_Options = Data::SelectionOptions_Clipboard;
  EXPECT_EQ(Run(), (Lines{Warning("Selection Task - My &task<13><10><13><10>Filter (*.log,*.bmp) "
                                  "qualified nothing!")}));
  item.m_szSelection_Filter = L"";
  selection.dataObject = nullptr;
  EXPECT_EQ(Run(), (Lines{"SetClipboard", "ShellExecuteEx file=C:\\run.exe show=5"}));
}

TEST_F(SelectionTask, ShiftAndCtrlDoWhatTheOptionsDo) {
  item.m_szSelection_FileSuffix = L";";
  item.m_szSelection_File = L"C:\\Lists\\list.txt";
  Select({L"C:\\Notes"});
  const std::string flat = "WriteFile path=C:\\Lists\\list.txt text=C:\\Notes;";
  EXPECT_EQ(Run(), (Lines{flat}));
  EXPECT_EQ(Run(true), (Lines{flat + "C:\\Notes\\a.txt;C:\\Notes\\b b.doc;C:\\Notes\\Sub;"}));
  const Lines deepShort = {flat + "C:\\Notes\\a.txt;C:\\Notes\\BB~1.DOC;C:\\Notes\\Sub;"};
  EXPECT_EQ(Run(true, true), deepShort);
  item.m_lSelection_Options = Data::SelectionOptions_Recurse | Data::SelectionOptions_ShortNames;
  EXPECT_EQ(Run(), deepShort);
  desktop.dialogs.foldersUntilCancel = 0;
  EXPECT_EQ(Run(), Lines{}) << "cancelled";
}

}  // namespace
}  // namespace orvane::test
