#include <gtest/gtest.h>

#include <filesystem>

#include "host/BoxCloser.h"
#include "host/Com.h"
#include "host/Definition.h"
#include "host/DialogScript.h"
#include "host/Effects.h"
#include "host/Modes.h"
#include "menudata/clsOrvaneData.h"
#include "server/DialogIds.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;
namespace fs = std::filesystem;

/// The user's menu with entries whose work shows outside this process.
class Effects : public testing::Test {
 protected:
  Effects() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    const std::wstring start = L"--write \"" + started + L"\" [orv_selection]";
    const std::wstring reports = scene.Path(L"Reports");
    WriteDefinition(
        scene.Path(L"Menu.cfg"),
        {{0, Item::TypeRoot, 0, {L"&Zoo"}},
         {1,
          Item::TypeSelectionTask,
          0,
          {reports, L"&Xstart", HostPath(), start, L"/", L"\\t", L"", L"", L"", L"", L"65"}},
         {1,
          Item::TypeSelectionTask,
          0,
          {L"", L"List", L"", L"", L"", L"", list, L"<", L">\\n", L"*.txt", L"17"}},
         {1, Item::TypeCopyToX, 0, {reports, L"Copy there", L"0"}},
         {1, Item::TypeCopyToX, 0, {reports, L"Move there", L"1"}}});
  }

  /// Right-clicks the files and chooses an entry.
  void ChooseFor(const std::vector<std::wstring>& names, const wchar_t* caption) {
    RightClick click(scene.Folder(), Select(scene.Folder(), names).Get());
    click.Query();
    EXPECT_TRUE(Choose(click, caption));
    EXPECT_EQ(closer.boxes, std::vector<std::wstring>());
  }

  Apartment apartment;
  Scene scene;
  BoxCloser closer;
  const std::wstring started = scene.Path(L"started.out");
  const std::wstring list = scene.Path(L"list.out");
};

TEST_F(Effects, SelectionTaskStartsItsProgramInItsFolder) {
  ChooseFor({L"a.txt", L"\u0416.txt", L"R&D.txt"}, L"&Xstart");
  EXPECT_EQ(WaitForRecord(started), scene.Path(L"Reports") +
                                        L"\n/C:\\Orvane Test\\a.txt\n/C:\\Orvane Test\\\u0416.txt\n"
                                        L"/C:\\Orvane Test\\R&D.txt\n");
}

TEST_F(Effects, SelectionTaskWritesItsFileAndTheClipboard) {
  ChooseFor({L"R&D.txt", L"Reports", L"a.txt"}, L"List");
  EXPECT_EQ(WaitForFile(list), "<C:\\Orvane Test\\R&D.txt>\r\n<C:\\Orvane Test\\a.txt>\r\n");
  EXPECT_EQ(ClipboardOfAnotherProcess(scene),
            L"<C:\\Orvane Test\\R&D.txt>\r\n<C:\\Orvane Test\\a.txt>\r\n");
  ChooseFor({L"b.txt"}, L"List");
  EXPECT_EQ(WaitForFile(list), "<C:\\Orvane Test\\b.txt>\r\n") << "replaced, not appended to";
}

TEST_F(Effects, NamesOnTheClipboardAreReadByAnotherProcess) {
  ChooseFor({L"\u0416.txt", L"Reports"}, L"Copy to Clipboard");
  EXPECT_EQ(ClipboardOfAnotherProcess(scene),
            L"C:\\Orvane Test\\\u0416.txt\r\nC:\\Orvane Test\\Reports\r\n");
}

TEST_F(Effects, FixedDestinationCopies) {
  ChooseFor({L"a.txt", L"\u0416.txt"}, L"Copy there");
  for (const wchar_t* name : {L"a.txt", L"\u0416.txt"}) {
    EXPECT_TRUE(fs::exists(scene.Path(name)));
    EXPECT_EQ(fs::file_size(fs::path(scene.Path(L"Reports")) / name), 1u);
  }
}

// One name at a time: the SHFileOperation of Wine answers "cancelled" to a move of two into one
// folder, to anybody.
TEST_F(Effects, FixedDestinationMoves) {
  ChooseFor({L"R&D.txt"}, L"Move there");
  EXPECT_FALSE(fs::exists(scene.Path(L"R&D.txt")));
  EXPECT_EQ(fs::file_size(scene.Path(L"Reports") + L"\\R&D.txt"), 1u);
}

void Type(HWND dialog, const std::wstring& text) {
  SetDlgItemTextW(dialog, IDC_DESTINATION, text.c_str());
}
std::wstring Destination(HWND dialog) {
  return TextOf(GetDlgItem(dialog, IDC_DESTINATION));
}

TEST_F(Effects, DialogCopiesRemembersAndMoves) {
  const std::wstring reports = scene.Path(L"Reports");
  {
    const DialogScript user({[&](HWND dialog) {
                               EXPECT_EQ(TextOf(dialog), L"Orvane - Copy To");
                               EXPECT_EQ(Destination(dialog), L"");
                               Type(dialog, scene.Path(L"a.txt"));
                               Click(dialog, IDOK);
                             },
                             [&](HWND dialog) {
                               EXPECT_EQ(closer.boxes.size(), 1u);
                               Type(dialog, reports);
                               Click(dialog, IDOK);
                             }},
                            L"orvane.dll");
    RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
    click.Query();
    EXPECT_TRUE(Choose(click, L"Copy to..."));
    EXPECT_TRUE(user.IsDone());
    EXPECT_EQ(closer.boxes,
              std::vector<std::wstring>{
                  L"Orvane - Orvane Shell Extension: Destination folder does not exist!"});
  }
  EXPECT_TRUE(fs::exists(scene.Path(L"a.txt")));
  EXPECT_TRUE(fs::exists(reports + L"\\a.txt"));
  closer.boxes.clear();
  const DialogScript user({[&](HWND dialog) {
                            EXPECT_EQ(TextOf(dialog), L"Orvane - Move To");
                            EXPECT_EQ(Destination(dialog), reports);
                            EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_SLOT)), L"&1. " + reports);
                            Click(dialog, IDOK);
                          }},
                          L"orvane.dll");
  ChooseFor({L"\u0416.txt"}, L"Move to...");
  EXPECT_TRUE(user.IsDone());
  EXPECT_FALSE(fs::exists(scene.Path(L"\u0416.txt")));
  EXPECT_TRUE(fs::exists(reports + L"\\\u0416.txt"));
}

TEST_F(Effects, CommandPromptStartsInTheFolder) {
  wchar_t own[MAX_PATH];
  GetEnvironmentVariableW(L"comspec", own, MAX_PATH);
  SetEnvironmentVariableW(L"comspec", HostPath().c_str());
  SetEnvironmentVariableW(PromptRecord, started.c_str());
  ChooseFor({L"a.txt"}, L"Command Prompt Here");
  EXPECT_EQ(WaitForRecord(started), scene.Folder() + L"\n");
  SetEnvironmentVariableW(PromptRecord, nullptr);
  SetEnvironmentVariableW(L"comspec", own);
}

TEST_F(Effects, KeysAloneOpenTheMenuAndChoose) {
  const HostProcess shell(L"--menu \"" + scene.Folder() + L"\" a.txt");
  const HWND window = WaitForWindow(L"OrvaneHost");
  ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == window; }));
  // Real keys go to whoever has the focus at that moment; what is lost to another window is pressed
  // again.
  std::wstring record;
  for (int attempt = 0; attempt < 3 && record.empty(); ++attempt) {
    for (int i = 0; attempt > 0 && i < 3; ++i) PressTogether({VK_ESCAPE});
    PressTogether({VK_SHIFT, VK_F10});
    ASSERT_NE(WaitForWindow(L"#32768"), nullptr) << "no menu";
    PressTogether({'Z'});
    PressTogether({'X'});
    record = WaitForRecord(started);
  }
  EXPECT_EQ(record, scene.Path(L"Reports") + L"\n/C:\\Orvane Test\\a.txt\n");
  EXPECT_TRUE(WaitFor([&] { return shell.HasEnded(); }));
}

}  // namespace
}  // namespace orvane::host
