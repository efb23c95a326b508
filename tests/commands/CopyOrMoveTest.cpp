#include "commands/CopyOrMove.h"

#include "Scene.h"
#include "commands/Browser.h"
#include "support/Error.h"

namespace orvane::test {
namespace {

const std::string Copied =
    "SHFileOperation func=copy from=C:\\one|C:\\two words|C:\\three to=C:\\Backup flags=64";
const std::string NoSuchFolder = Warning("Destination folder does not exist!");

class CopyOrMove : public testing::Test, protected Scene {
 protected:
  CopyOrMove() {
    desktop.files.AddFolder(L"C:\\Backup");
    desktop.files.AddFolder(L"D:\\Other Place");
    desktop.files.AddFile(L"C:\\a.txt");
    Select({L"C:\\one", L"C:\\two words", L"C:\\three"});
  }

  frmCopyTo::Services Services() {
    return {desktop.dialogs, desktop.files, desktop.shell, desktop.boxes, copyTo, true};
  }

  /// The effects of the command after these answers; the destination is asked for when empty.
  Lines Run(bool copy, std::vector<std::wstring> answers, const std::wstring& destination = L"") {
    for (auto& answer : answers) desktop.answers.Add(std::move(answer));
    CopyOrMoveSelection(Services(), desktop.operations, WindowHandle::None,
                        selection.dataObject.get(), copy, destination);
    return Effects();
  }
};

TEST_F(CopyOrMove, DialogStartsEmptyAndRemembersTheDestination) {
  frmCopyTo dialog(Services());
  EXPECT_EQ(dialog.InitialDestination(), L"");
  ASSERT_EQ(dialog.Slots().size(), 7u);
  EXPECT_EQ(dialog.Slots()[6].caption, L"7.");
  EXPECT_FALSE(dialog.Slots()[0].used);

  EXPECT_EQ(Run(true, {L"C:\\Backup"}), (Lines{Copied}));
  EXPECT_EQ(Run(false, {L"D:\\Other Place"}),
            (Lines{"SHFileOperation func=move from=C:\\one|C:\\two words|C:\\three to=D:\\Other "
                   "Place flags=64"}));
  EXPECT_EQ(dialog.InitialDestination(), L"D:\\Other Place");
  EXPECT_EQ(dialog.Slots()[1].caption, L"2. C:\\Backup");

  EXPECT_EQ(Run(true, {L"mru_2", L"ok"}), (Lines{Copied}));
  clsMRU stored(desktop.registry);
  stored.Path(copyTo.Path());
  stored.Load(7);
  EXPECT_EQ(stored.FileCount(), 2);
  EXPECT_EQ(stored.File(1), L"C:\\Backup");
}

TEST_F(CopyOrMove, DialogStaysOpenUntilTheFolderExists) {
  EXPECT_EQ(Run(true, {L"C:\\a.txt", L"C:\\gone", L"C:\\Backup"}),
            (Lines{NoSuchFolder, NoSuchFolder, Copied}));
  EXPECT_EQ(Run(true, {L"C:\\gone", L"cancel"}), (Lines{NoSuchFolder}));
  EXPECT_EQ(copyTo.FileCount(), 1);
}

TEST_F(CopyOrMove, BrowsingFillsTheFieldAndCancellingKeepsIt) {
  EXPECT_EQ(Run(true, {L"browse", L"C:\\Backup", L"ok"}), (Lines{Copied}));
  EXPECT_EQ(Run(true, {L"browse", L"cancel", L"ok"}), (Lines{Copied}));  // the last one
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Select the destination folder:");
}

TEST_F(CopyOrMove, FixedDestinationAsksNobodyAndNothingIsDoneWithoutNames) {
  EXPECT_EQ(Run(true, {}, L"C:\\Backup"), (Lines{Copied}));
  EXPECT_EQ(copyTo.FileCount(), 0);
  EXPECT_TRUE(desktop.dialogs.shownTitles.empty());
  Select({});
  EXPECT_EQ(Run(true, {}, L"C:\\Backup"), Lines{});
  selected->failure = memory::DataObject::NoFiles;
  EXPECT_THROW(Run(true, {}, L"C:\\Backup"), Error);
  selection.dataObject = nullptr;
  EXPECT_EQ(Run(true, {}, L"C:\\Backup"), Lines{});
}

TEST_F(CopyOrMove, AWildcardStopsItWithAMessageAndTheLongPathPrefixIsNone) {
  Select({L"\\\\?\\C:\\one", L"\\\\?\\UNC\\srv\\share\\two"});
  EXPECT_EQ(Run(true, {}, L"C:\\Backup"),
            (Lines{"SHFileOperation func=copy from=C:\\one|\\\\srv\\share\\two to=C:\\Backup "
                   "flags=64"}));
  for (const wchar_t* name : {L"C:\\a*", L"\\\\?\\C:\\a?"}) {
    Select({L"C:\\one", name});
    const Lines effects = Run(false, {}, L"C:\\Backup");
    ASSERT_EQ(effects.size(), 1u);
    EXPECT_TRUE(effects[0].starts_with("MessageBox")) << effects[0];
  }
}

/// A dialog that tells its model the things that the memory dialogs leave out.
class BrowseDialog : public Dialogs, private BrowseWindow {
 public:
  bool ShowCopyTo(WindowHandle, CopyToModel&) override { return false; }
  bool ShowProgress(WindowHandle, ProgressModel&) override { return false; }

  Picked Browse(WindowHandle, const ItemIdList&, const std::wstring& title, std::uint32_t flags,
                BrowseModel& model) override {
    log = title + L" " + std::to_wstring(flags);
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

  dialog.visited.clear();
  dialog.typesNonsense = true;
  dialog.picked = {printers, L"Printers"};
  std::wstring name = L"untouched";
  EXPECT_EQ(browser.BrowseForFolder(WindowHandle::None, L"Folder", L"C:\\Start", &name),
            L"C:\\Start");
  EXPECT_EQ(name, L"untouched");
  EXPECT_EQ(dialog.log, L"Folder 117 select:C:\\Start stays");
  EXPECT_EQ(Effects(), (Lines{Warning("Invalid entry specified!")}));

  dialog.picked = {backup, L"Backup"};
  EXPECT_EQ(browser.BrowseForFolder(WindowHandle::None, L"Folder", L"", &name), L"C:\\Backup");
  EXPECT_EQ(name, L"Backup");
}

}  // namespace
}  // namespace orvane::test
