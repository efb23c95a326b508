#include "commands/SelectionTask.h"

#include <gtest/gtest.h>

#include "Scene.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Lines = std::vector<std::string>;
using Trouble = memory::FileSystem::Trouble;
using test::Warning;

class SelectionTask : public testing::Test, protected test::Scene {
 protected:
  SelectionTask() {
    desktop.files.AddFile(L"C:\\Notes\\a.txt");
    desktop.files.AddFile(L"C:\\Notes\\b b.doc");
    desktop.files.AddFile(L"C:\\Notes\\Sub\\c.txt");
    desktop.files.AddFolder(L"C:\\Lists");
    Select({L"C:\\Notes\\a.txt", L"C:\\Notes\\b b.doc"});
    item.m_lType = Data::TypeSelectionTask;
    item.Caption(L"My &task");
  }

  Lines Run(bool shift = false, bool ctrl = false) {
    desktop.effects.Clear();
    ExecuteSelectionTask(Context(), WindowHandle::None, item, shift, ctrl);
    return Effects();
  }

  clsOrvaneData item;
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
  EXPECT_EQ(item.m_szSelection_FilePrefix, L"\t");
}

TEST_F(SelectionTask, DeliversInOrderAndEachOnItsOwn) {
  item.m_lSelection_Options = Data::SelectionOptions_Clipboard;
  item.m_szSelection_FileSuffix = L";";
  item.m_szSelection_File = L"C:\\Lists\\list.txt";
  item.m_szSelection_Command = L"C:\\run.exe";
  EXPECT_EQ(Run(), (Lines{"SetClipboard text=C:\\Notes\\a.txt;C:\\Notes\\b b.doc;",
                          "WriteFile path=C:\\Lists\\list.txt "
                          "text=C:\\Notes\\a.txt;C:\\Notes\\b b.doc;",
                          "ShellExecuteEx file=C:\\run.exe show=5"}));

  desktop.clipboard.heldOpen = true;
  desktop.files.Add(Trouble::ReadOnly, L"C:\\Lists");
  EXPECT_EQ(Run(),
            (Lines{Warning("The clipboard is in use by another program. Please try again in a "
                           "moment."),
                   Warning("Could not open the selection file 'C:\\Lists\\list.txt'<13><10><13>"
                           "<10>Error 75: Path/file access error"),
                   "ShellExecuteEx file=C:\\run.exe show=5"}));
  EXPECT_EQ(desktop.files.Content(L"C:\\Lists\\list.txt"), "C:\\Notes\\a.txt;C:\\Notes\\b b.doc;");
}

TEST_F(SelectionTask, FilterThatTakesNothingIsSaid) {
  item.m_szSelection_Filter = L"*.log,*.bmp";
  item.m_szSelection_Command = L"C:\\run.exe";
  item.m_lSelection_Options = Data::SelectionOptions_Clipboard;
  EXPECT_EQ(Run(), (Lines{Warning("Selection Task - My &task<13><10><13><10>Filter (*.log,*.bmp) "
                                  "qualified nothing!")}));
  item.m_szSelection_Filter = L"";
  selection = nullptr;
  EXPECT_EQ(Run(), (Lines{"SetClipboard", "ShellExecuteEx file=C:\\run.exe show=5"}));
}

TEST_F(SelectionTask, ShiftAndCtrlDoWhatTheOptionsDo) {
  item.m_szSelection_FileSuffix = L";";
  item.m_szSelection_File = L"C:\\Lists\\list.txt";
  Select({L"C:\\Notes"});
  const Lines flat = {"WriteFile path=C:\\Lists\\list.txt text=C:\\Notes;"};
  const Lines deep = {
      "WriteFile path=C:\\Lists\\list.txt "
      "text=C:\\Notes;C:\\Notes\\a.txt;C:\\Notes\\b b.doc;C:\\Notes\\Sub;C:\\Notes\\Sub\\c.txt;"};
  const Lines deepShort = {
      "WriteFile path=C:\\Lists\\list.txt "
      "text=C:\\Notes;C:\\Notes\\a.txt;C:\\Notes\\BB~1.DOC;C:\\Notes\\Sub;C:\\Notes\\Sub\\c.txt;"};
  EXPECT_EQ(Run(), flat);
  EXPECT_EQ(Run(true), deep);
  EXPECT_EQ(Run(true, true), deepShort);
  item.m_lSelection_Options = Data::SelectionOptions_Recurse | Data::SelectionOptions_ShortNames;
  EXPECT_EQ(Run(), deepShort);
}

TEST_F(SelectionTask, CancellingProducesNothing) {
  Select({L"C:\\Notes"});
  item.m_szSelection_Command = L"C:\\run.exe";
  desktop.dialogs.foldersUntilCancel = 0;
  EXPECT_EQ(Run(true), Lines{});
}

}  // namespace
}  // namespace orvane
