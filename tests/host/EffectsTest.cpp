#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/DialogScript.h"
#include "host/Effects.h"
#include "host/Library.h"
#include "host/Modes.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"
#include "server/DialogIds.h"
#include "support/Scrambler.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;
namespace fs = std::filesystem;

/// The user's menu with entries whose work shows outside this process.
class Effects : public testing::Test {
 protected:
  Effects() {
    scene.PlainText();
    const std::wstring start = L"--write \"" + started + L"\" [orv_selection]";
    Define({{1,
             Item::TypeSelectionTask,
             0,
             {reports, L"&Xstart", HostPath(), start, L"/", L"\\t", L"", L"", L"", L"", L"65"}},
            {1,
             Item::TypeSelectionTask,
             0,
             {L"", L"List", L"", L"", L"", L"", list, L"<", L">\\n", L"*.txt", L"17"}},
            {1, Item::TypeCustomAction, 0, {L"ab+c{{}d{}}{LEFT 2}{x 3}", L"Type"}},
            {1, Item::TypeFolder, 0, {reports, L"Reports"}}});
  }

  void Define(std::vector<DefinitionItem> items) {
    items.insert(items.begin(), {0, Item::TypeRoot, 0, {L"&Zoo"}});
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteDefinition(scene.Path(L"Menu.cfg"), items);
  }

  /// Right-clicks the files and chooses an entry.
  void Choose(const std::vector<std::wstring>& names, const std::wstring& caption,
              HWND window = nullptr) {
    RightClick click(scene.Folder(), Select(scene.Folder(), names).Get());
    click.Query();
    EXPECT_TRUE(click.Choose(caption, window)) << click.Text();
    EXPECT_TRUE(user.IsDone());
  }

  Apartment apartment;
  Scene scene;
  DialogScript user{{}, L"orvane.dll"};
  const std::wstring reports = scene.Path(L"Reports");
  const std::wstring started = scene.Path(L"started.out");
  const std::wstring list = scene.Path(L"list.out");
};

/// An edit control of another process to type into. These tests come before those that start
/// programs, whose consoles take the keyboard with them when they close.
class Typing : public Effects {
 protected:
  /// Chooses the entry once the edit control has the keyboard; answers what it then holds.
  std::wstring TextAfter(const wchar_t* caption) {
    const HostProcess other(L"--edit");
    const HWND frame = WaitForWindow(L"#32770", L"Orvane Edit");
    HWND edit = nullptr;
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    EXPECT_TRUE(WaitFor([&] {
      edit = FindWindowExW(frame, nullptr, L"Edit", nullptr);
      return edit && GetForegroundWindow() == frame &&
             GetGUIThreadInfo(GetWindowThreadProcessId(frame, nullptr), &thread) &&
             thread.hwndFocus == edit;
    }));
    Choose({L"a.txt"}, caption, edit);
    wchar_t text[1000] = L"";
    SendMessageW(edit, WM_GETTEXT, 1000, reinterpret_cast<LPARAM>(text));
    return text;
  }
};

TEST_F(Typing, CustomActionTypesIntoTheForegroundWindow) {
  EXPECT_EQ(TextAfter(L"Type"), L"abC{xxxd}");
}

TEST_F(Typing, WindowActionTypesTheFolderIntoTheWindowThatAsked) {
  scene.Set(L"ShellCustomActionsFile", scene.Path(L"Actions.ini"));
  std::ofstream(fs::path(scene.Path(L"Actions.ini")))
      << "[go]\nType=1\nOrder=1\nDescription=Go there\nOptions=1\nActions=go [orv_item]+1\n"
      << "Caption=orvane\nCaptionMatch=1\nClass=Edit\nClassMatch=2\nExeMatch=2\n"
      << "Exe=" << fs::path(HostPath()).string() << "\n";
  EXPECT_EQ(TextAfter(L"Reports"), L"go C:\\Orvane Test\\Reports!");
}

TEST_F(Effects, SelectionTaskWritesItsFile) {
  Choose({L"R&D.txt", L"Reports", L"a.txt"}, L"List");
  EXPECT_EQ(WaitForFile(list), L"<C:\\Orvane Test\\R&D.txt>\r\n<C:\\Orvane Test\\a.txt>\r\n");
  Choose({L"b.txt"}, L"List");
  EXPECT_EQ(WaitForFile(list), L"<C:\\Orvane Test\\b.txt>\r\n") << "replaced, not appended to";
}

TEST_F(Effects, CommandsAreTakenAsVerbsOfEitherKind) {
  RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
  click.Query();
  CMINVOKECOMMANDINFOEX record{};
  record.cbSize = sizeof record;
  record.lpVerb = "Item1";
  record.lpVerbW = L"Item1";
  for (const DWORD kind : {DWORD{0}, DWORD{CMIC_MASK_UNICODE}}) {
    record.fMask = kind;
    EXPECT_EQ(click.handler->InvokeCommand(reinterpret_cast<CMINVOKECOMMANDINFO*>(&record)), S_OK);
    EXPECT_EQ(WaitForFile(list), L"<C:\\Orvane Test\\a.txt>\r\n");
    fs::remove(list);
    record.lpVerb = "of the other kind";
  }
}

TEST_F(Effects, NamesOnTheClipboardAreReadByAnotherProcess) {
  Choose({L"\u0416.txt", L"Reports"}, L"Copy to Clipboard");
  const std::wstring record = scene.Path(L"clipboard.txt");
  const HostProcess reader(L"--clipboard \"" + record + L'"');
  EXPECT_EQ(WaitForFile(record), L"C:\\Orvane Test\\\u0416.txt\r\nC:\\Orvane Test\\Reports\r\n");
}

DialogScript::Step Enter(const std::wstring& title, const std::wstring& offered,
                         const std::wstring& destination) {
  return [=](HWND dialog) {
    EXPECT_EQ(TextOf(dialog), title);
    EXPECT_EQ(TextOf(dialog, IDC_DESTINATION), offered);
    SetDlgItemTextW(dialog, IDC_DESTINATION, destination.c_str());
    Click(dialog, IDOK);
  };
}

TEST_F(Effects, DialogCopiesRemembersAndMoves) {
  const std::wstring noFolder = scene.Path(L"a.txt");
  user.Continue(
      {Enter(L"Orvane - Copy To", L"", noFolder), Enter(L"Orvane - Copy To", noFolder, reports)});
  Choose({L"a.txt", L"R&D.txt"}, L"Copy to...");
  EXPECT_EQ(user.boxes, std::vector<std::wstring>{L"Orvane - Orvane Shell Extension: "
                                                  L"Destination folder does not exist!"});
  for (const wchar_t* name : {L"a.txt", L"R&D.txt"}) {
    EXPECT_TRUE(fs::exists(scene.Path(name)));
    EXPECT_EQ(fs::file_size(fs::path(reports) / name), 1u);
  }

  // One name at a time: the SHFileOperation of Wine answers "cancelled" to a move of two into one
  // folder, to anybody.
  user.Continue({[&](HWND dialog) { EXPECT_EQ(TextOf(dialog, IDC_SLOT), L"&1. " + reports); },
                 Enter(L"Orvane - Move To", reports, reports)});
  Choose({L"\u0416.txt"}, L"Move to...");
  EXPECT_FALSE(fs::exists(scene.Path(L"\u0416.txt")));
  EXPECT_EQ(fs::file_size(reports + L"\\\u0416.txt"), 1u);
}

TEST_F(Effects, CommandPromptStartsInTheFolder) {
  wchar_t own[MAX_PATH];
  GetEnvironmentVariableW(L"comspec", own, MAX_PATH);
  SetEnvironmentVariableW(L"comspec", HostPath().c_str());
  SetEnvironmentVariableW(PromptRecord, started.c_str());
  Choose({L"a.txt"}, L"Command Prompt Here");
  EXPECT_EQ(WaitForFile(started), scene.Folder() + L"\n");
  SetEnvironmentVariableW(PromptRecord, nullptr);
  SetEnvironmentVariableW(L"comspec", own);
}

void Press(std::initializer_list<WORD> keys) {
  for (const bool up : {false, true}) {
    for (const WORD key : keys) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = key;
      input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
      input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
      SendInput(1, &input, sizeof input);
    }
  }
}

TEST_F(Effects, KeysAloneOpenTheMenuAndStartTheProgramInItsFolder) {
  const HostProcess shell(L"--menu \"" + scene.Folder() + L"\" a.txt \u0416.txt R&D.txt");
  const HWND window = WaitForWindow(L"OrvaneHost");
  ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == window; }));
  // Real keys go to whoever has the focus at that moment; what is lost to another window is pressed
  // again.
  std::wstring record;
  for (int attempt = 0; attempt < 3 && record.empty(); ++attempt) {
    for (int i = 0; attempt > 0 && i < 3; ++i) Press({VK_ESCAPE});
    Press({VK_SHIFT, VK_F10});
    ASSERT_NE(WaitForWindow(L"#32768"), nullptr) << "no menu";
    Press({'Z'});
    Press({'X'});
    record = WaitForFile(started);
  }
  EXPECT_EQ(record, reports +
                        L"\n/C:\\Orvane Test\\a.txt\n/C:\\Orvane Test\\\u0416.txt\n"
                        L"/C:\\Orvane Test\\R&D.txt\n");
  EXPECT_TRUE(WaitFor([&] { return shell.HasEnded(); }));
}

/// A kind of document that this program opens.
class History : public Effects {
 protected:
  History() {
    const std::wstring command = L'"' + HostPath() + L"\" --write \"" + started + L"\" \"%1\"";
    RegSetKeyValueW(HKEY_CLASSES_ROOT, L".orvanetest", nullptr, REG_SZ, L"OrvaneTest", 22);
    RegSetKeyValueW(HKEY_CLASSES_ROOT, L"OrvaneTest\\shell\\open\\command", nullptr, REG_SZ,
                    command.c_str(), static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
  }
  ~History() override {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L".orvanetest");
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L"OrvaneTest");
  }

  DefinitionItem Document(const std::wstring& name) const {
    const std::wstring path = scene.Path((name + L".orvanetest").c_str());
    std::ofstream(fs::path(path)) << "x";
    return {1, Item::TypeFile, 0, {path, name}};
  }

  void Open(const std::wstring& caption, const DefinitionItem& document) {
    fs::remove(started);
    Choose({L"a.txt"}, caption);
    EXPECT_TRUE(WaitForFile(started).ends_with(L'\n' + document.values[0] + L'\n'));
  }
};

/// Whether the document's list entry holds a zero in its enciphered form.
bool HoldsZero(const DefinitionItem& document) {
  std::vector<std::byte> bytes;
  for (const wchar_t character :
       L"6,0,\"" + document.values[0] + L"\",\"" + document.values[1] + L'"') {
    bytes.push_back(static_cast<std::byte>(character));
  }
  Scrambler(L"QWXKRTZPV").Scramble(bytes);
  return std::ranges::find(bytes, std::byte{0}) != bytes.end();
}

TEST_F(History, OpenedDocumentsAreThereOnTheNextRightClick) {
  const DefinitionItem notes = Document(L"Notes"), plan = Document(L"Plan");
  ASSERT_TRUE(HoldsZero(plan));
  Define({notes, plan});
  Open(L"Notes", notes);
  Open(L"Plan", plan);
  Open(L"&2 Notes", notes);
  Open(L"&2 Plan", plan);
}

}  // namespace
}  // namespace orvane::host
