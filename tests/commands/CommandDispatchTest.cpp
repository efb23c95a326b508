#include "commands/CommandDispatch.h"

#include <algorithm>

#include "Scene.h"

namespace orvane::test {
namespace {

using Entries = std::vector<std::wstring>;

class Dispatch : public testing::Test, protected Scene {
 protected:
  Dispatch() {
    desktop.files.AddFile(L"C:\\Work\\plan.txt");
    desktop.files.AddFolder(L"C:\\My Work");
    selection.folder = L"C:\\Work";
    window = AddWindow(L"CabinetWClass");
    desktop.windows.Look(window)->results[memory::Launcher::GetShellBrowser] = 0x1234;
  }

  Lines Invoke(std::int32_t offset) {
    desktop.effects.Clear();
    return Take(IContextMenu_InvokeCommand(Context(), {window, true, offset, L""}));
  }

  Lines Take(const InvokeOutcome& outcome) {
    result = outcome.result;
    isOurs = outcome.isOurs;
    return Effects();
  }

  Lines InvokeVerb(const std::wstring& verb) {
    desktop.effects.Clear();
    return Take(IContextMenu_InvokeCommand(Context(), {window, false, 0, verb}));
  }

  /// What an item of the type does, as the only entry of a fresh command table.
  Lines Run(std::int32_t type) {
    items.Clear();
    Add(type);
    return Invoke(0);
  }

  void Hold(bool ctrl, bool shift) {
    desktop.keyboard.down.clear();
    if (ctrl) desktop.keyboard.down.insert(Keyboard::Control);
    if (shift) desktop.keyboard.down.insert(Keyboard::Shift);
  }

  std::int32_t result = 0;
  bool isOurs = false;
  WindowHandle window;
};

TEST_F(Dispatch, EntriesAreFoundByOffsetAndByVerb) {
  Add(Data::TypeSeparator);
  Add(Data::TypeFile, L"C:\\one.txt");
  Add(Data::TypeFile, L"C:\\two.txt");
  const Lines two = {"ShellExecuteEx file=C:\\two.txt show=5"};
  struct {
    const wchar_t* verb;
    Lines effects;
  } const rows[] = {
      {L"Item2", two},   {L"Copy2", two},  // the letters do not count
      {L"Item 2 ", two}, {L"Item3", {}},  {L"Item-1", {}}, {L"It", {}},
      {L"", {}},         {L"Item2x", {}}, {L"open", {}},   {L"Item4294967298", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(InvokeVerb(row.verb), row.effects) << "verb " << Printable(row.verb);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(isOurs, !row.effects.empty()) << "verb " << Printable(row.verb);
  }
  EXPECT_EQ(Invoke(2), two);
  for (const std::int32_t offset : {0, 3, 4, -1, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(Invoke(offset), Lines{}) << offset;
    EXPECT_EQ(result, 0);
    EXPECT_EQ(isOurs, offset == 0) << offset;
  }
}

TEST_F(Dispatch, VerbsOpenTheSelectedFileAndFoldersWhateverKeyIsHeld) {
  selection.file = L"C:\\Work\\plan.txt";
  EXPECT_EQ(InvokeVerb(L"OPEN"), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
  Add(Data::TypeFolder, L"C:\\Work");
  Hold(true, true);
  EXPECT_EQ(InvokeVerb(L"Item0"), (Lines{"BrowseObject item=C:\\Work"}));
}

TEST_F(Dispatch, FirstEntryTogglesDebuggingWhenTheMenuHasThatEntry) {
  options.m_bDebugEnableInMenu = true;
  Add(Data::TypeFile, L"C:\\one.txt");
  for (const std::uint32_t on : {1u, 0u}) {
    const Lines lines = Invoke(0);
    EXPECT_EQ(options.m_bDebugEnable, on == 1);
    EXPECT_EQ(desktop.registry.FindNumber(Hive::CurrentUser, options.m_szPath, L"DebugEnable"), on);
    const auto isSaved = [](const std::string& line) { return line.starts_with("RegSet"); };
    EXPECT_EQ(std::ranges::count_if(lines, isSaved), 4) << "the debug settings alone";
  }
  options.m_bDebugEnableInMenu = false;
  EXPECT_EQ(Invoke(0), (Lines{"ShellExecuteEx file=C:\\one.txt show=5"}));
}

TEST_F(Dispatch, TypesThatDoNothing) {
  for (const std::int32_t type :
       {Data::TypeRoot, Data::TypePopupMenu, Data::TypeSeparator, Data::TypeDynamicFolder,
        Data::TypeShowDesktop, Data::TypeRestoreDesktop, Data::TypePopupHistory,
        Data::TypePopupQuickAccess, Data::TypeDynamicFolderEmpty, 4, -1, 999})
    EXPECT_EQ(Run(type), Lines{}) << type;
}

TEST_F(Dispatch, FilesOpenAndBecomeHistory) {
  Add(Data::TypeFile, L"C:\\Work\\plan.txt")->Caption(L"Plan");
  EXPECT_EQ(Invoke(0), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
  EXPECT_EQ(ItemsOf(history), (Entries{L"6 C:\\Work\\plan.txt Plan"}));
  selection.file = L"C:\\Work\\plan.txt";
  EXPECT_EQ(Run(Data::TypeOpenInNewWindow),
            (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
}

TEST_F(Dispatch, ListsAreResetAndSaved) {
  history.AddFile(L"x");
  quickAccess.AddFile(L"y");
  Run(Data::TypeResetHistoryMRU);
  EXPECT_EQ(desktop.registry.FindNumber(Hive::CurrentUser, history.Path(), L"MruFileCount"), 0u);
  EXPECT_EQ(history.FileCount(), 0);
  EXPECT_EQ(quickAccess.FileCount(), 1);
  Run(Data::TypeResetQuickAccessMRU);
  EXPECT_EQ(quickAccess.FileCount(), 0);
}

TEST_F(Dispatch, QuickAccessTakesTheFileOrTheFolderOnce) {
  Run(Data::TypeAddToQuickAccessMRU);
  Run(Data::TypeAddToQuickAccessMRU);
  selection.file = L"C:\\Work\\plan.txt";
  Run(Data::TypeAddToQuickAccessMRU);
  EXPECT_EQ(ItemsOf(quickAccess), (Entries{L"6 C:\\Work\\plan.txt plan.txt", L"1 C:\\Work Work"}));
}

TEST_F(Dispatch, ListsKeepWhatAnotherWindowAddedAndNothingThatTheirCodePageCannotSpell) {
  clsMRU elsewhere(desktop.registry);
  elsewhere.Path(history.Path());
  elsewhere.Load(5);
  Add(Data::TypeFile, L"C:\\Work\\plan.txt")->Caption(L"Plan");
  Add(Data::TypeFile, L"C:\\\u05d0.txt")->Caption(L"Aleph");
  Invoke(0);
  elsewhere.Remember(L"from elsewhere");
  Invoke(1);
  Invoke(0);
  EXPECT_EQ(history.FileCount(), 2);
  EXPECT_EQ(history.File(2), L"from elsewhere");
  selection.file = L"C:\\\u05d0.txt";
  Run(Data::TypeAddToQuickAccessMRU);
  EXPECT_EQ(quickAccess.FileCount(), 0);
}

TEST_F(Dispatch, DesignerStartsFromEitherPlace) {
  const std::string beside =
      "ShellExecute verb=open file=C:\\Program Files\\Orvane\\designer.exe show=1";
  const std::string above =
      "ShellExecute verb=open file=C:\\Program Files\\Orvane\\..\\designer\\designer.exe show=1";
  EXPECT_EQ(Run(Data::TypeDesigner), (Lines{beside}));
  auto& failures = desktop.launcher.failures;
  failures[L"C:\\Program Files\\Orvane\\designer.exe"] = 2;
  EXPECT_EQ(Run(Data::TypeDesigner), (Lines{beside, above}));
  failures[L"C:\\Program Files\\Orvane\\..\\designer\\designer.exe"] = 26;
  EXPECT_EQ(Run(Data::TypeDesigner),
            (Lines{beside, above, Warning("A sharing violation occurred.")}));
}

TEST_F(Dispatch, ActionsArePlayed) {
  Add(Data::TypeCustomAction)->m_szAction_Actions = L"ab[orv_item]";
  EXPECT_EQ(Invoke(0), (Lines{"SendKeys text=ab"}));
}

TEST_F(Dispatch, NamesGoToTheClipboard) {
  const std::int32_t type = Data::TypeCopyFilenamesToClipboard;
  Select({L"C:\\Work", L"C:\\My Work"});
  EXPECT_EQ(Run(type), (Lines{"SetClipboard text=C:\\Work<13><10>C:\\My Work<13><10>"}));
  Hold(true, false);
  EXPECT_EQ(Run(type), (Lines{"SetClipboard text=C:\\Work<13><10>C:\\MYWORK~1<13><10>"}));
  Hold(false, true);
  EXPECT_EQ(Run(type), (Lines{"SetClipboard text=C:\\Work<13><10>C:\\Work\\plan.txt<13><10>"
                              "C:\\My Work<13><10>"}));

  selected->failure = memory::DataObject::LockFailed;
  EXPECT_EQ(Run(type), Lines{});
  EXPECT_EQ(result, memory::DataObject::LockFailed) << "the shell's to know";
  selected->failure = 0;
  desktop.clipboard.heldOpen = true;
  EXPECT_EQ(Run(type), (Lines{Warning("The clipboard is in use by another program. Please "
                                      "try again in a moment.")}));
  EXPECT_EQ(result, static_cast<std::int32_t>(0x800A0209));
}

TEST_F(Dispatch, RunDialogIsOpenedAndTypedInto) {
  const Lines keys = {"keybd_event key=91 up=false", "keybd_event key=82 up=false",
                      "keybd_event key=82 up=true", "keybd_event key=91 up=true", "Sleep ms=100"};
  struct {
    const wchar_t* item;
    const char* typed;
  } const rows[] = {{L"C:\\Work", "SendKeys text=C:\\Work"},
                    {L"C:\\My Work", "SendKeys text=\"C:\\My Work\""},
                    {L"C:\\{Work", nullptr}};  // no proper keystroke notation
  for (const auto& row : rows) {
    Lines lines = keys;
    if (row.typed) lines.push_back(row.typed);
    selection.onlyItem = row.item;
    EXPECT_EQ(Run(Data::TypeRunDialog), lines);
  }
  selection.onlyItem = L"x";
  desktop.keyboard.runDialogAfter = 1'000;
  EXPECT_EQ(Run(Data::TypeRunDialog).back(), "SendKeys text=x");
  desktop.keyboard.runDialogAfter = 10'000;
  Lines late = keys;
  late.insert(late.end(), 20, "Sleep ms=50");
  EXPECT_EQ(Run(Data::TypeRunDialog), late) << "nothing for the window that was in front before";
}

TEST_F(Dispatch, CommandPromptIsStartedByItsFullPath) {
  const std::string own = "C:\\Windows\\System32\\cmd.exe /k ";
  struct {
    const wchar_t* comspec;
    std::string command;
  } const rows[] = {
      {L"", own},
      {L"cmd.exe", own},
      {L"C:cmd.exe", own},
      {L"\"C:\\x.exe\" /c evil", own},
      {L"D:\\My Shell\\sh.exe", "\"D:\\My Shell\\sh.exe\" /k "},
      {L"\\\\srv\\share\\sh.exe", "\\\\srv\\share\\sh.exe /k "},
  };
  for (const auto& row : rows) {
    desktop.system.SetEnvironment(L"comspec", row.comspec);
    EXPECT_EQ(Run(Data::TypeCommandPrompt),
              (Lines{"CreateProcess command=" + row.command + " directory=C:\\Work"}));
  }
  desktop.launcher.failures[L"C:\\Work"] = 3;
  EXPECT_EQ(Run(Data::TypeCommandPrompt), (Lines{"CreateProcess command=" + rows[5].command}))
      << "in the host's own folder rather than not at all";
  EXPECT_EQ(desktop.files.WorkingDirectory(), L"C:\\Windows\\System32");
}

TEST_F(Dispatch, SelectionIsCopiedAndMoved) {
  Select({L"C:\\Work\\plan.txt"});
  const auto operation = [](const std::string& func, const std::string& to) {
    return "SHFileOperation func=" + func + " from=C:\\Work\\plan.txt to=" + to + " flags=64";
  };
  desktop.answers.Add(L"C:\\My Work");
  EXPECT_EQ(Run(Data::TypeCopyTo).back(), operation("copy", "C:\\My Work"));
  desktop.answers.Add(L"ok");
  EXPECT_EQ(Run(Data::TypeMoveTo).back(), operation("move", "C:\\My Work"));
  EXPECT_EQ(desktop.dialogs.shownTitles, (Entries{L"Orvane - Copy To", L"Orvane - Move To"}));

  items.Clear();
  const auto fixed = Add(Data::TypeCopyToX, L"E:\\Fixed");
  EXPECT_EQ(Invoke(0), (Lines{operation("copy", "E:\\Fixed")}));
  fixed->m_lCopyToX_Options = Data::CopyToXOptions_Move;
  EXPECT_EQ(Invoke(0), (Lines{operation("move", "E:\\Fixed")}));
}

TEST_F(Dispatch, TaskManagerComesFromTheTaskbar) {
  EXPECT_EQ(Run(Data::TypeTaskManager), Lines{});
  const WindowHandle taskbar = AddWindow(L"Shell_TrayWnd");
  EXPECT_EQ(Run(Data::TypeTaskManager),
            (Lines{"PostMessage window=" + std::to_string(ToNumber(taskbar)) +
                   " message=273 wParam=420 lParam=0"}));
}

TEST_F(Dispatch, SelectionTaskGetsTheModifierKeys) {
  Select({L"C:\\My Work", L"C:\\Work"});
  const auto item = Add(Data::TypeSelectionTask);
  item->m_lSelection_Options = Data::SelectionOptions_Clipboard;
  item->m_szSelection_FileSuffix = L";";
  Hold(true, true);
  EXPECT_EQ(Invoke(0), (Lines{"SetClipboard text=C:\\MYWORK~1;C:\\Work;C:\\Work\\plan.txt;"}));
}

TEST_F(Dispatch, LogOfAnInvocation) {
  Add(Data::TypeFile, L"C:\\one.txt");
  debug.Initialize(L"C:\\Debug.dbg", clsTrace::FlagAutoCommit);
  Invoke(0);
  Invoke(7);
  InvokeVerb(L"Item?");
  const std::string log = *desktop.files.Content(L"C:\\Debug.dbg");
  std::size_t from = 0;
  for (const char* part :
       {"IContextMenu_InvokeCommand\r\n", "Source hWnd=0x00020002  lpVerb=0x00000000\r\n",
        "lCmdKey=2000  bCtrlPressed=False  bShiftPressed=False\r\n", "Index=1\r\n",
        "m_lType=6  m_lOptions=0\r\n", "Opening C:\\one.txt\r\n", "lCmdKey=2007",
        "Entry not found!\r\n", "Verb=Item?\r\n", "*E* 0x0000000D - "}) {
    const std::size_t found = log.find(part, from);
    ASSERT_NE(found, std::string::npos) << part << "\n" << log;
    from = found;
  }
}

}  // namespace
}  // namespace orvane::test
