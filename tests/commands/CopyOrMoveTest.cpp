#include "commands/CopyOrMove.h"

#include <gtest/gtest.h>

#include "EffectText.h"
#include "commands/Browser.h"
#include "platform/memory/DataObject.h"
#include "platform/memory/Desktop.h"
#include "support/Error.h"

namespace orvane {
namespace {

using Lines = std::vector<std::string>;

const std::string NoSuchFolder =
    "MessageBox title=Orvane - Orvane Shell Extension text=Destination folder does not exist! "
    "icon=exclamation buttons=ok";

class CopyOrMove : public testing::Test {
 protected:
  CopyOrMove() {
    list.Path(L"Software\\Tarnwick\\Orvane\\ContextMenu\\CopyTo\\");
    list.Load(7);
    desktop.files.AddFolder(L"C:\\Backup");
    desktop.files.AddFolder(L"D:\\Other Place");
    desktop.files.AddFile(L"C:\\a.txt");
  }

  frmCopyTo::Services Services() {
    return {desktop.dialogs, desktop.files, desktop.shell, desktop.boxes, list, true};
  }

  /// The effects of the command, registry writes left out, after these answers.
  Lines Run(bool copy, const std::wstring& destination, std::vector<std::wstring> answers) {
    desktop.effects.Clear();
    for (auto& answer : answers) desktop.answers.Add(std::move(answer));
    CopyOrMoveSelection(Services(), desktop.operations, WindowHandle::None, &selection, copy,
                        destination);
    Lines lines = test::EffectLines(desktop.effects);
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("RegSet"); });
    return lines;
  }

  memory::Desktop desktop;
  clsMRU list{desktop.registry};
  memory::DataObject selection{L"C:\\one", L"C:\\two words", L"C:\\three"};
};

constexpr const char* Copied =
    "SHFileOperation func=copy from=C:\\one|C:\\two words|C:\\three to=C:\\Backup flags=64";

TEST_F(CopyOrMove, DialogStartsEmptyAndRemembersTheDestination) {
  frmCopyTo dialog(Services());
  EXPECT_EQ(dialog.Title(), L"Orvane - Move To");
  EXPECT_EQ(dialog.InitialDestination(), L"");
  ASSERT_EQ(dialog.Slots().size(), 7u);
  EXPECT_EQ(dialog.Slots()[6].caption, L"7.");
  EXPECT_FALSE(dialog.Slots()[0].used);

  EXPECT_EQ(Run(true, L"", {L"C:\\Backup"}), (Lines{Copied}));
  EXPECT_EQ(Run(false, L"", {L"D:\\Other Place"}),
            (Lines{"SHFileOperation func=move from=C:\\one|C:\\two words|C:\\three to=D:\\Other "
                   "Place flags=64"}));
  EXPECT_EQ(dialog.InitialDestination(), L"D:\\Other Place");
  EXPECT_EQ(dialog.Slots()[1].caption, L"2. C:\\Backup");

  EXPECT_EQ(Run(true, L"", {L"mru_2", L"ok"}), (Lines{Copied}));
  EXPECT_EQ(list.FileCount(), 2);
  clsMRU stored(desktop.registry);
  stored.Path(list.Path());
  stored.Load(7);
  EXPECT_EQ(stored.File(1), L"C:\\Backup");
}

TEST_F(CopyOrMove, DialogStaysOpenUntilTheFolderExists) {
  EXPECT_EQ(Run(true, L"", {L"C:\\a.txt", L"C:\\gone", L"C:\\Backup"}),
            (Lines{NoSuchFolder, NoSuchFolder, Copied}));
  EXPECT_EQ(Run(true, L"", {L"C:\\gone", L"cancel"}), (Lines{NoSuchFolder}));
  EXPECT_EQ(list.FileCount(), 1);
}

TEST_F(CopyOrMove, BrowsingFillsTheFieldAndCancellingKeepsIt) {
  EXPECT_EQ(Run(true, L"", {L"browse", L"C:\\Backup", L"ok"}), (Lines{Copied}));
  EXPECT_EQ(Run(true, L"", {L"browse", L"cancel", L"ok"}), (Lines{Copied}));  // the last one
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Select the destination folder:");
}

TEST_F(CopyOrMove, FixedDestinationAsksNobody) {
  EXPECT_EQ(Run(true, L"C:\\Nowhere", {}),
            (Lines{"SHFileOperation func=copy from=C:\\one|C:\\two words|C:\\three to=C:\\Nowhere "
                   "flags=64"}));
  EXPECT_EQ(list.FileCount(), 0);
  EXPECT_TRUE(desktop.dialogs.shownTitles.empty());
}

TEST_F(CopyOrMove, SelectionsWithoutNames) {
  selection = memory::DataObject();
  EXPECT_EQ(Run(true, L"C:\\Backup", {}), Lines{});
  selection.failure = memory::DataObject::NoFiles;
  EXPECT_THROW(Run(true, L"C:\\Backup", {}), Error);
  CopyOrMoveSelection(Services(), desktop.operations, WindowHandle::None, nullptr, true, L"C:\\B");
  EXPECT_TRUE(desktop.effects.All().empty());
}

/// A dialog that tells its model the things that the memory dialogs leave out.
class BrowseDialog : public Dialogs, private BrowseWindow {
 public:
  bool ShowCopyTo(WindowHandle, CopyToModel&) override { return false; }
  void ShowProgress(WindowHandle, ProgressModel&) override {}

  Picked Browse(WindowHandle, const ItemIdList&, const std::wstring& title, std::uint32_t flags,
                BrowseModel& model) override {
    log += title + L" " + std::to_wstring(flags);
    model.Opened(*this);
    for (const ItemIdList& item : visited) model.Selected(*this, item);
    if (typesNonsense) log += model.InvalidEntry() ? L" stays" : L" closes";
    return picked;
  }

  std::vector<ItemIdList> visited;
  bool typesNonsense = false;
  Picked picked;
  std::wstring log;

 private:
  void Select(const std::wstring& path) override { log += L" select:" + path; }
  void Expand(const std::wstring& path) override { log += L" expand:" + path; }
  void SetStatus(const std::wstring& text) override { log += L" status:" + text; }
};

TEST_F(CopyOrMove, BrowseDialogsStartAndFollowTheUser) {
  constexpr std::int32_t Printers = 4;
  BrowseDialog dialog;
  Browser browser(dialog, desktop.shell, desktop.boxes);
  const ItemIdList printers = desktop.shell.SpecialFolder(WindowHandle::None, Printers);
  const ItemIdList backup = memory::Shell::ItemOf(L"C:\\Backup");
  dialog.visited = {backup, printers};
  EXPECT_FALSE(browser.BrowseForFile(WindowHandle::None, L"File", L"C:\\Start", 512));
  EXPECT_EQ(dialog.log, L"File 17120 select:C:\\Start expand:C:\\Start status:C:\\Backup");

  dialog.log.clear();
  dialog.visited.clear();
  dialog.typesNonsense = true;
  dialog.picked = {printers, L"Printers"};
  std::wstring name = L"untouched";
  EXPECT_EQ(browser.BrowseForFolder(WindowHandle::None, L"Folder", L"C:\\Start", &name),
            L"C:\\Start");
  EXPECT_EQ(name, L"untouched");
  EXPECT_EQ(dialog.log, L"Folder 117 select:C:\\Start stays");
  EXPECT_EQ(test::EffectLines(desktop.effects),
            (Lines{"MessageBox title=Orvane - Orvane Shell Extension text=Invalid entry "
                   "specified! icon=exclamation buttons=ok"}));

  dialog.picked = {backup, L"Backup"};
  EXPECT_EQ(browser.BrowseForFolder(WindowHandle::None, L"Folder", L"", &name), L"C:\\Backup");
  EXPECT_EQ(name, L"Backup");
}

}  // namespace
}  // namespace orvane
