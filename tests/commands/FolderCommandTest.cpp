#include "commands/FolderCommand.h"

#include <gtest/gtest.h>

#include "Scene.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Lines = std::vector<std::string>;
using test::Warning;

constexpr std::int32_t Printers = 4;
constexpr std::int32_t WindowsFolder = 36;
constexpr std::intptr_t Browser = 0x1234;
constexpr std::intptr_t ParentBrowser = 0x5678;
constexpr auto Failed = static_cast<std::int32_t>(0x80004005);

class Folder : public testing::Test, protected test::Scene {
 protected:
  Folder() {
    desktop.files.AddFile(L"C:\\Work\\plan.txt");
    frame = AddWindow(L"ExploreWClass");
    window = AddWindow(L"SHELLDLL_DefView", frame);
    Answer(window, Browser);
    Answer(frame, ParentBrowser);
    item.m_lType = Data::TypeFolder;
    item.Location(L"C:\\Work");
    item.Caption(L"Work");
  }

  void Answer(WindowHandle whose, std::intptr_t browser) {
    desktop.windows.Look(whose)->results[memory::Launcher::GetShellBrowser] = browser;
  }

  Lines Run(bool ctrl = false, bool shift = false, bool withMessages = false) {
    desktop.effects.Clear();
    FolderCommand(Context(), window).Run(item, ctrl, shift);
    return Effects(withMessages);
  }

  void SetSpecial(std::int32_t csidl, std::int32_t lOptions = 0) {
    item.m_lOptions = Data::OptionsCSIDL | lOptions;
    item.FolderCSIDL(csidl);
  }

  std::string Message(WindowHandle to, int message) {
    return "SendMessage window=" + std::to_string(ToNumber(to)) +
           " message=" + std::to_string(message) + " wParam=0 lParam=0";
  }

  clsOrvaneData item;
  WindowHandle frame;
  WindowHandle window;
};

const std::string Explore = "ShellExecute verb=explore file=C:\\Work parameters=/e show=10";

TEST_F(Folder, ModifierKeysChooseTheWindow) {
  const Lines here = {"BrowseObject item=C:\\Work"};
  EXPECT_EQ(Run(), here);
  EXPECT_EQ(Run(false, true), here);
  EXPECT_EQ(Run(true), (Lines{Explore}));
  EXPECT_EQ(ItemsOf(history), (std::vector<std::wstring>{L"1 C:\\Work Work"}));
  item.m_lOptions = Data::OptionsExploreInNewWindow;
  EXPECT_EQ(Run(), (Lines{Explore}));
}

TEST_F(Folder, BrowsingTriesTheWindowThenItsFrameThenANewOne) {
  const Lines first = {Message(window, 0x407), "BrowseObject item=C:\\Work",
                       Message(window, 0x40A)};
  EXPECT_EQ(Run(false, false, true), first);

  desktop.launcher.browserFailures[Browser] = Failed;
  EXPECT_EQ(Run(false, false, true), (Lines{Message(window, 0x407), Message(frame, 0x407),
                                            "BrowseObject item=C:\\Work", Message(window, 0x40A)}));

  desktop.windows.Look(frame)->answers = false;  // hangs
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx verb=open show=1 class=Folder item=C:\\Work"}));
  desktop.windows.Remove(frame);
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx verb=open show=1 class=Folder item=C:\\Work"}));
}

TEST_F(Folder, SpecialFolders) {
  SetSpecial(WindowsFolder);
  EXPECT_EQ(Run(), (Lines{"BrowseObject item=C:\\Windows"}));
  EXPECT_EQ(Run(true), (Lines{"ShellExecuteEx show=10 item=C:\\Windows"}));
  SetSpecial(Printers, Data::OptionsExploreInNewWindow);
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx show=10 item=Printers"}));
}

TEST_F(Folder, SpecialFoldersThatAreNone) {
  SetSpecial(9999);
  EXPECT_EQ(Run(), (Lines{Warning("OS doesn't support the special folder: 9999")}));
  EXPECT_EQ(history.FileCount(), 0);
  SetSpecial(9999, Data::OptionsExploreInNewWindow);
  EXPECT_EQ(Run(), Lines{});
  EXPECT_EQ(history.FileCount(), 1);
  item.m_szFolder_Location = L"twelve";
  EXPECT_THROW(Run(), Error);
}

TEST_F(Folder, NewWindowSaysWhyItDoesNotOpen) {
  std::int32_t& failure = desktop.launcher.failures[L"C:\\Work"];
  failure = 3;
  EXPECT_EQ(Run(true), (Lines{Explore, Warning("Path not found - C:\\Work")}));
  failure = 5;
  EXPECT_EQ(Run(true), (Lines{Explore, Warning("Path/file access error")}));
  failure = 31;
  EXPECT_EQ(Run(true), (Lines{Explore}));
}

TEST_F(Folder, VanishedFoldersStillBecomeHistory) {
  item.Location(L"C:\\Gone");
  Run();
  EXPECT_EQ(ItemsOf(history), (std::vector<std::wstring>{L"1 C:\\Gone Work"}));
}

TEST_F(Folder, BrowseAndOpen) {
  desktop.answers.Add(L"C:\\Work\\plan.txt");
  EXPECT_EQ(Run(true, true), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Select the file you wish to open");
  item.m_lOptions = Data::OptionsBrowseAndOpen;
  desktop.answers.Add(L"cancel");
  EXPECT_EQ(Run(), Lines{});
}

TEST_F(Folder, WindowActionTakesTheFolderInstead) {
  desktop.files.AddFile(L"C:\\Actions.ini",
                        "[one]\r\nType=1\r\nOrder=1\r\nDescription=Console\r\nClass=console\r\n"
                        "ClassMatch=1\r\nActions=cd [orv_item]~\r\nOptions=1\r\n");
  options.m_szShellCustomActionsFile = L"C:\\Actions.ini";
  windowActions = 1;
  EXPECT_EQ(Run(), (Lines{"BrowseObject item=C:\\Work"}));  // no window of that class

  memory::Windows::Window console;
  console.className = L"ConsoleWindowClass";
  console.process = 77;
  window = desktop.windows.Add(console);
  desktop.processes.running.push_back({.id = 77, .executable = L"C:\\con.exe"});
  EXPECT_EQ(Run(), (Lines{"SendKeys text=cd ", "SendKeys text=C:\\Work", "SendKeys text=~"}));
  EXPECT_EQ(desktop.windows.Active(), window);
  EXPECT_EQ(Run(true), (Lines{Explore}));
  windowActions = 0;
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx verb=open show=1 class=Folder item=C:\\Work"}));
}

}  // namespace
}  // namespace orvane
