#include "commands/FolderCommand.h"

#include "Scene.h"

namespace orvane::test {
namespace {

constexpr std::int32_t Printers = 4;
constexpr std::int32_t WindowsFolder = 36;
constexpr std::intptr_t WindowsBrowser = 0x1234;
constexpr std::intptr_t FramesBrowser = 0x5678;
const std::string Explore = "ShellExecute verb=explore file=C:\\Work parameters=/e show=10";
const std::string NewWindow = "ShellExecuteEx verb=open show=1 class=Folder item=C:\\Work";

class FolderEntry : public testing::Test, protected Scene {
 protected:
  FolderEntry() {
    desktop.files.AddFile(L"C:\\Work\\plan.txt");
    frame = AddWindow(L"ExploreWClass");
    window = AddWindow(L"SHELLDLL_DefView", frame);
    desktop.windows.Look(window)->results[memory::Launcher::GetShellBrowser] = WindowsBrowser;
    desktop.windows.Look(frame)->results[memory::Launcher::GetShellBrowser] = FramesBrowser;
    item.m_lType = Data::TypeFolder;
    item.Location(L"C:\\Work");
    item.Caption(L"Work");
  }

  Lines Run(bool ctrl = false, bool shift = false, const std::string& without = "SendMessage") {
    desktop.effects.Clear();
    FolderCommand(Context(), window).Run(item, ctrl, shift);
    return Effects(without);
  }

  void SetSpecial(std::int32_t csidl, std::int32_t lOptions = 0) {
    item.m_lOptions = Data::OptionsCSIDL | lOptions;
    item.FolderCSIDL(csidl);
  }

  Data item;
  WindowHandle frame;
  WindowHandle window;
};

TEST_F(FolderEntry, ModifierKeysChooseTheWindow) {
  EXPECT_EQ(Run(), (Lines{"BrowseObject item=C:\\Work"}));
  EXPECT_EQ(Run(false, true), (Lines{"BrowseObject item=C:\\Work"}));
  EXPECT_EQ(Run(true), (Lines{Explore}));
  EXPECT_EQ(ItemsOf(history), (std::vector<std::wstring>{L"1 C:\\Work Work"}));
  item.m_lOptions = Data::OptionsExploreInNewWindow;
  EXPECT_EQ(Run(), (Lines{Explore}));
}

TEST_F(FolderEntry, BrowsingTriesTheWindowThenItsFrameThenANewOne) {
  const auto message = [](WindowHandle to, int number) {
    return "SendMessage window=" + std::to_string(ToNumber(to)) +
           " message=" + std::to_string(number) + " wParam=0 lParam=0";
  };
  EXPECT_EQ(Run(false, false, ""),
            (Lines{message(window, 0x407), "BrowseObject item=C:\\Work", message(window, 0x40A)}));

  desktop.launcher.browserFailures[WindowsBrowser] = static_cast<std::int32_t>(0x80004005);
  EXPECT_EQ(Run(false, false, ""), (Lines{message(window, 0x407), message(frame, 0x407),
                                          "BrowseObject item=C:\\Work", message(window, 0x40A)}));

  desktop.windows.Look(frame)->answers = false;  // hangs
  EXPECT_EQ(Run(), (Lines{NewWindow}));
  desktop.windows.Remove(frame);
  EXPECT_EQ(Run(), (Lines{NewWindow}));
}

TEST_F(FolderEntry, SpecialFolders) {
  SetSpecial(WindowsFolder);
  EXPECT_EQ(Run(), (Lines{"BrowseObject item=C:\\Windows"}));
  EXPECT_EQ(Run(true), (Lines{"ShellExecuteEx show=10 item=C:\\Windows"}));
  SetSpecial(Printers, Data::OptionsExploreInNewWindow);
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx show=10 item=Printers"}));
  history.Reset();
  SetSpecial(9999);
  EXPECT_EQ(Run(), (Lines{Warning("OS doesn't support the special folder: 9999")}));
  EXPECT_EQ(history.FileCount(), 0);
  SetSpecial(9999, Data::OptionsExploreInNewWindow);
  EXPECT_EQ(Run(), Lines{});
  EXPECT_EQ(history.FileCount(), 1);
  item.m_szFolder_Location = L"twelve";
  EXPECT_THROW(Run(), Error);
}

TEST_F(FolderEntry, WhatDoesNotOpenSaysWhyAndIsHistoryAllTheSame) {
  item.Location(L"C:\\Gone");
  desktop.launcher.failures[L"C:\\Gone"] = 3;
  EXPECT_EQ(Run(true).back(), Warning("Path not found - C:\\Gone"));
  history.Reset();
  EXPECT_EQ(Run(), (Lines{Warning("Path not found - C:\\Gone")}));
  EXPECT_EQ(ItemsOf(history), (std::vector<std::wstring>{L"1 C:\\Gone Work"}));
}

TEST_F(FolderEntry, BrowseAndOpen) {
  desktop.answers.Add(L"C:\\Work\\plan.txt");
  EXPECT_EQ(Run(true, true), (Lines{"ShellExecuteEx file=C:\\Work\\plan.txt show=5"}));
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Select the file you wish to open");
  item.m_lOptions = Data::OptionsBrowseAndOpen;
  desktop.answers.Add(L"cancel");
  EXPECT_EQ(Run(), Lines{});
}

TEST_F(FolderEntry, WindowActionTakesTheFolderInstead) {
  desktop.files.AddFile(L"C:\\Actions.ini",
                        "[one]\r\nType=1\r\nOrder=1\r\nDescription=Console\r\nClass=console\r\n"
                        "ClassMatch=1\r\nActions=cd [orv_item]~\r\nOptions=1\r\n");
  options.m_szShellCustomActionsFile = L"C:\\Actions.ini";
  windowActions = 1;
  EXPECT_EQ(Run(), (Lines{"BrowseObject item=C:\\Work"}));  // no window of that class

  window = desktop.windows.Add({.className = L"ConsoleWindowClass", .process = 77});
  desktop.processes.running.push_back({.id = 77, .executable = L"C:\\con.exe"});
  EXPECT_EQ(Run(), (Lines{"SendKeys text=cd ", "SendKeys text=C:\\Work", "SendKeys text=~"}));
  EXPECT_EQ(desktop.windows.Active(), window);
  EXPECT_EQ(Run(true), (Lines{Explore}));
  item.Location(L"C:\\Gone");
  EXPECT_EQ(Run(), (Lines{Warning("Path not found - C:\\Gone")}));
  SetSpecial(Printers);
  EXPECT_EQ(Run(), (Lines{"ShellExecuteEx verb=open show=1 class=Folder item=Printers"}))
      << "it has no path to type";
  item.m_lOptions = 0;
  item.Location(L"C:\\Work");
  windowActions = 0;
  EXPECT_EQ(Run(), (Lines{NewWindow}));
}

}  // namespace
}  // namespace orvane::test
