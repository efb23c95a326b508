#include "commands/CommandDispatch.h"

#include <gtest/gtest.h>

#include "Scene.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Lines = std::vector<std::string>;
using Entries = std::vector<std::wstring>;
using test::Warning;

constexpr std::intptr_t Browser = 0x1234;

class Dispatch : public testing::Test, protected test::Scene {
 protected:
  Dispatch() {
    desktop.files.AddFile(L"C:\\Work\\plan.txt");
    desktop.files.AddFolder(L"C:\\My Work");
    folder = L"C:\\Work";
    window = AddWindow(L"CabinetWClass");
    desktop.windows.Look(window)->results[memory::Launcher::GetShellBrowser] = Browser;
  }

  std::int32_t Invoke(std::int32_t offset) {
    desktop.effects.Clear();
    return IContextMenu_InvokeCommand(Context(), {window, true, offset, L""});
  }

  std::int32_t InvokeVerb(const std::wstring& verb) {
    desktop.effects.Clear();
    return IContextMenu_InvokeCommand(Context(), {window, false, 0, verb});
  }

  /// What an item of the type does, as the only entry of a fresh command table.
  Lines Effects(std::int32_t type) {
    items.Clear();
    Add(type);
    EXPECT_EQ(Invoke(0), 0);
    return Scene::Effects();
  }

  void Hold(bool ctrl, bool shift) {
    desktop.keyboard.down.clear();
    if (ctrl) desktop.keyboard.down.insert(Keyboard::Control);
    if (shift) desktop.keyboard.down.insert(Keyboard::Shift);
  }

  WindowHandle window;
};

TEST_F(Dispatch, EntriesAreFoundByOffsetAndByVerb) {
  Add(Data::TypeSeparator);
  Add(Data::TypeFile)->Location(L"C:\\one.txt");
  Add(Data::TypeFile)->Location(L"C:\\two.txt");
  const Lines one = {"ShellExecuteEx file=C:\\one.txt show=5"};
  const Lines two = {"ShellExecuteEx file=C:\\two.txt show=5"};
  struct {
    const wchar_t* verb;
    Lines effects;
  } const rows[] = {
      {L"Item1", one},
      {L"Item2", two},
      {L"Copy2", two},  // the letters do not count
      {L"Item 2 ", two},
      {L"Item3", {}},
      {L"Item-1", {}},
      {L"Item", {}},
      {L"It", {}},
      {L"", {}},
      {L"Item2x", {}},
      {L"Item2147483647", {}},
      {L"Item4294967298", {}},
      {L"properties", {}},
      {L"open", {}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(InvokeVerb(row.verb), 0);
    EXPECT_EQ(Scene::Effects(), row.effects) << "verb " << test::Printable(row.verb);
  }
  for (const std::int32_t offset : {0, 3, -1, 65535, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(Invoke(offset), 0);
    EXPECT_TRUE(Scene::Effects().empty()) << offset;
  }
  Invoke(2);
  EXPECT_EQ(Scene::Effects(), two);
}

TEST_F(Dispatch, OpenVerbOpensTheSelectedFile) {
  file = L"C:\\Work\\plan.txt";
  EXPECT_EQ(InvokeVerb(L"OPEN"), 0);
  EXPECT_EQ(Scene::Effects(), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
}

TEST_F(Dispatch, ModifierKeysDoNotCountForVerbs) {
  Add(Data::TypeFolder)->Location(L"C:\\Work");
  Hold(true, true);
  InvokeVerb(L"Item0");
  EXPECT_EQ(Scene::Effects(), (Lines{"BrowseObject item=C:\\Work"}));
}

TEST_F(Dispatch, FirstEntryTogglesDebuggingWhenTheMenuHasThatEntry) {
  options.m_bDebugEnableInMenu = true;
  Add(Data::TypeFile)->Location(L"C:\\one.txt");
  Invoke(0);
  EXPECT_TRUE(options.m_bDebugEnable);
  for (const std::string& line : Scene::Effects()) {
    if (line.starts_with("RegSet")) {
      EXPECT_NE(line.find("name=Debug"), std::string::npos) << line;
      EXPECT_EQ(line.find("kind=D "), std::string::npos) << line;
    }
  }
  Invoke(0);
  EXPECT_FALSE(options.m_bDebugEnable);
  options.m_bDebugEnableInMenu = false;
  Invoke(0);
  EXPECT_EQ(Scene::Effects(), (Lines{"ShellExecuteEx file=C:\\one.txt show=5"}));
}

TEST_F(Dispatch, TypesThatDoNothing) {
  for (const std::int32_t type :
       {Data::TypeRoot, Data::TypePopupMenu, Data::TypeSeparator, Data::TypeDynamicFolder,
        Data::TypeShowDesktop, Data::TypeRestoreDesktop, Data::TypePopupHistory,
        Data::TypePopupQuickAccess, Data::TypeDynamicFolderEmpty, 4, -1, 999})
    EXPECT_EQ(Effects(type), Lines{}) << type;
}

TEST_F(Dispatch, EntriesWithoutARecordDoNothing) {
  items.Add(L"", First);
  EXPECT_EQ(Invoke(0), 0);
  EXPECT_TRUE(Scene::Effects().empty());
}

TEST_F(Dispatch, FilesOpenAndBecomeHistory) {
  const auto item = Add(Data::TypeFile);
  item->Location(L"C:\\Work\\plan.txt");
  item->Caption(L"Plan");
  Invoke(0);
  EXPECT_EQ(Scene::Effects(), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
  EXPECT_EQ(ItemsOf(history), (Entries{L"6 C:\\Work\\plan.txt Plan"}));
  file = L"C:\\Work\\plan.txt";
  EXPECT_EQ(Effects(Data::TypeOpenInNewWindow),
            (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
}

TEST_F(Dispatch, ListsAreResetAndSaved) {
  history.AddFile(L"x");
  quickAccess.AddFile(L"y");
  const Lines saved = Effects(Data::TypeResetHistoryMRU);
  ASSERT_EQ(saved.size(), 1u);
  EXPECT_NE(saved[0].find("HistoryMRU name=MruFileCount"), std::string::npos) << saved[0];
  EXPECT_EQ(history.FileCount(), 0);
  EXPECT_EQ(quickAccess.FileCount(), 1);
  Effects(Data::TypeResetQuickAccessMRU);
  EXPECT_EQ(quickAccess.FileCount(), 0);
}

TEST_F(Dispatch, QuickAccessTakesTheFileOrTheFolderOnce) {
  Effects(Data::TypeAddToQuickAccessMRU);
  Effects(Data::TypeAddToQuickAccessMRU);
  file = L"C:\\Work\\plan.txt";
  Effects(Data::TypeAddToQuickAccessMRU);
  folder = L"C:\\My Work";
  file.clear();
  Effects(Data::TypeAddToQuickAccessMRU);
  EXPECT_EQ(ItemsOf(quickAccess), (Entries{L"1 C:\\My Work My Work",
                                           L"6 C:\\Work\\plan.txt plan.txt", L"1 C:\\Work Work"}));
}

TEST_F(Dispatch, DesignerStartsFromEitherPlace) {
  const std::string beside =
      "ShellExecute verb=open file=C:\\Program Files\\Orvane\\designer.exe show=1";
  const std::string above =
      "ShellExecute verb=open file=C:\\Program Files\\Orvane\\..\\designer\\designer.exe show=1";
  auto& failures = desktop.launcher.failures;
  EXPECT_EQ(Effects(Data::TypeDesigner), (Lines{beside}));
  failures[L"C:\\Program Files\\Orvane\\designer.exe"] = 2;
  EXPECT_EQ(Effects(Data::TypeDesigner), (Lines{beside, above}));
  std::int32_t& second = failures[L"C:\\Program Files\\Orvane\\..\\designer\\designer.exe"];
  second = 3;
  EXPECT_EQ(Effects(Data::TypeDesigner),
            (Lines{beside, above,
                   Warning("Path not found - C:\\Program Files\\Orvane\\..\\designer\\"
                           "designer.exe")}));
  second = 26;
  EXPECT_EQ(Effects(Data::TypeDesigner),
            (Lines{beside, above, Warning("A sharing violation occurred.")}));
  second = 31;
  EXPECT_EQ(Effects(Data::TypeDesigner), (Lines{beside, above}));
}

TEST_F(Dispatch, ActionsArePlayed) {
  Add(Data::TypeCustomAction)->m_szAction_Actions = L"ab[orv_item]{TAB}[orv_pause 20]";
  Invoke(0);
  EXPECT_EQ(Scene::Effects(), (Lines{"SendKeys text=ab", "SendKeys text={TAB}", "Sleep ms=20"}));
}

TEST_F(Dispatch, NamesGoToTheClipboard) {
  Select({L"C:\\Work", L"C:\\My Work"});
  EXPECT_EQ(Effects(Data::TypeCopyFilenamesToClipboard),
            (Lines{"SetClipboard text=C:\\Work<13><10>C:\\My Work<13><10>"}));
  Hold(true, false);
  EXPECT_EQ(Effects(Data::TypeCopyFilenamesToClipboard),
            (Lines{"SetClipboard text=C:\\Work<13><10>C:\\MYWORK~1<13><10>"}));
  Hold(false, true);
  EXPECT_EQ(Effects(Data::TypeCopyFilenamesToClipboard),
            (Lines{"SetClipboard text=C:\\Work<13><10>C:\\Work\\plan.txt<13><10>C:\\My Work<13>"
                   "<10>"}));
}

TEST_F(Dispatch, FailureOfTheClipboardIsTheShellsToKnow) {
  Select({L"C:\\Work"});
  Add(Data::TypeCopyFilenamesToClipboard);
  Hold(false, true);
  selection->failure = memory::DataObject::LockFailed;
  EXPECT_EQ(Invoke(0), memory::DataObject::LockFailed);
  EXPECT_TRUE(Scene::Effects().empty());
  selection->failure = 0;
  desktop.clipboard.heldOpen = true;
  EXPECT_EQ(Invoke(0), static_cast<std::int32_t>(0x800A0209));
  EXPECT_EQ(Scene::Effects(), (Lines{Warning("The clipboard is in use by another program. Please "
                                             "try again in a moment.")}));
  EXPECT_EQ(Effects(Data::TypeTaskManager), Lines{});  // all other commands: success
}

TEST_F(Dispatch, RunDialogIsOpenedAndTypedInto) {
  const Lines keys = {"keybd_event key=91 up=false", "keybd_event key=82 up=false",
                      "keybd_event key=82 up=true", "keybd_event key=91 up=true", "Sleep ms=100"};
  const auto typed = [&](const char* text) {
    Lines lines = keys;
    lines.push_back(std::string("SendKeys text=") + text);
    return lines;
  };
  selectedItem = L"C:\\Work";
  EXPECT_EQ(Effects(Data::TypeRunDialog), typed("C:\\Work"));
  selectedItem = L"C:\\My Work";
  EXPECT_EQ(Effects(Data::TypeRunDialog), typed("\"C:\\My Work\""));
  selectedItem = L"C:\\{Work";  // no proper keystroke notation
  EXPECT_EQ(Effects(Data::TypeRunDialog), keys);
}

TEST_F(Dispatch, CommandPromptIsStartedByItsFullPath) {
  const auto started = [](const std::string& command) {
    return Lines{"CreateProcess command=" + command + " directory=C:\\Work"};
  };
  EXPECT_EQ(Effects(Data::TypeCommandPrompt), started("C:\\Windows\\System32\\cmd.exe /k "));
  struct {
    const wchar_t* comspec;
    const char* command;
  } const rows[] = {
      {L"", "C:\\Windows\\System32\\cmd.exe /k "},
      {L"cmd.exe", "C:\\Windows\\System32\\cmd.exe /k "},
      {L"C:cmd.exe", "C:\\Windows\\System32\\cmd.exe /k "},
      {L"\"C:\\x.exe\" /c evil", "C:\\Windows\\System32\\cmd.exe /k "},
      {L"D:\\My Shell\\sh.exe", "\"D:\\My Shell\\sh.exe\" /k "},
      {L"\\\\srv\\share\\sh.exe", "\\\\srv\\share\\sh.exe /k "},
  };
  for (const auto& row : rows) {
    desktop.system.SetEnvironment(L"comspec", row.comspec);
    EXPECT_EQ(Effects(Data::TypeCommandPrompt), started(row.command));
  }
  EXPECT_EQ(desktop.files.WorkingDirectory(), L"C:\\Windows\\System32");
}

TEST_F(Dispatch, SelectionIsCopiedAndMoved) {
  Select({L"C:\\Work\\plan.txt"});
  desktop.answers.Add(L"C:\\My Work");
  EXPECT_EQ(Effects(Data::TypeCopyTo).back(),
            "SHFileOperation func=copy from=C:\\Work\\plan.txt to=C:\\My Work flags=64");
  desktop.answers.Add(L"ok");
  EXPECT_EQ(Effects(Data::TypeMoveTo).back(),
            "SHFileOperation func=move from=C:\\Work\\plan.txt to=C:\\My Work flags=64");
  EXPECT_EQ(desktop.dialogs.shownTitles,
            (std::vector<std::wstring>{L"Orvane - Copy To", L"Orvane - Move To"}));

  items.Clear();
  const auto fixed = Add(Data::TypeCopyToX);
  fixed->Location(L"E:\\Fixed");
  Invoke(0);
  EXPECT_EQ(Scene::Effects(), (Lines{"SHFileOperation func=copy from=C:\\Work\\plan.txt "
                                     "to=E:\\Fixed flags=64"}));
  fixed->m_lCopyToX_Options = Data::CopyToXOptions_Move;
  Invoke(0);
  EXPECT_EQ(Scene::Effects(), (Lines{"SHFileOperation func=move from=C:\\Work\\plan.txt "
                                     "to=E:\\Fixed flags=64"}));
}

TEST_F(Dispatch, TaskManagerComesFromTheTaskbar) {
  const WindowHandle taskbar = AddWindow(L"Shell_TrayWnd");
  EXPECT_EQ(Effects(Data::TypeTaskManager),
            (Lines{"PostMessage window=" + std::to_string(ToNumber(taskbar)) +
                   " message=273 wParam=420 lParam=0"}));
}

TEST_F(Dispatch, SelectionTaskGetsTheModifierKeys) {
  Select({L"C:\\My Work", L"C:\\Work"});
  const auto item = Add(Data::TypeSelectionTask);
  item->m_lSelection_Options = Data::SelectionOptions_Clipboard;
  item->m_szSelection_FileSuffix = L";";
  Hold(true, true);
  Invoke(0);
  EXPECT_EQ(Scene::Effects(),
            (Lines{"SetClipboard text=C:\\MYWORK~1;C:\\Work;C:\\Work\\plan.txt;"}));
}

TEST_F(Dispatch, LogOfAnInvocation) {
  Add(Data::TypeFile)->Location(L"C:\\one.txt");
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

TEST_F(Dispatch, EveryFailingCallIsSurvived) {
  Select({L"C:\\Work", L"C:\\My Work"});
  for (std::int32_t type = 0; type < 1016; type = type == 10 ? 1000 : type + 1) {
    for (std::size_t n = 1; n < 200; ++n) {
      items.Clear();
      const auto item = Add(type);
      item->Location(L"C:\\Work");
      item->m_lSelection_Options = Data::SelectionOptions_Clipboard;
      item->m_szSelection_File = L"C:\\Work\\list.txt";
      item->m_szSelection_Command = L"C:\\x.exe";
      desktop.answers = memory::Answers();
      desktop.answers.Add(L"C:\\My Work");
      Hold(n % 2 != 0, n % 3 != 0);
      desktop.faults.FailCall(n);
      const std::int32_t result = Invoke(0);
      EXPECT_TRUE(result == 0 || type == Data::TypeCopyFilenamesToClipboard) << type << " " << n;
      if (desktop.faults.Calls() < n) break;
    }
  }
}

}  // namespace
}  // namespace orvane
