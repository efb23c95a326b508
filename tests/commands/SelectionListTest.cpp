#include <algorithm>

#include "Scene.h"
#include "commands/ClipboardLines.h"
#include "commands/CopyNames.h"
#include "commands/TaskLists.h"
#include "commands/frmClipboardProgress.h"

namespace orvane::test {
namespace {

using memory::DataObject;

std::wstring List(std::initializer_list<std::wstring_view> names) {
  std::wstring lines;
  for (const std::wstring_view name : names) lines.append(name).append(L"\r\n");
  return lines;
}

class SelectionList : public testing::Test {
 protected:
  SelectionList() {
    desktop.files.AddFile(L"C:\\Notes\\A.TXT");
    desktop.files.AddFile(L"C:\\Notes\\my plan.txt");
    desktop.files.AddFile(L"C:\\Work\\b.doc");
    desktop.files.AddFile(L"C:\\Work\\Deep\\c.log");
    desktop.files.AddFile(L"C:\\Work\\Deep\\Deeper\\d.txt");
    desktop.files.AddFile(L"C:\\Work\\hidden.txt", {},
                          FileAttribute::Hidden | FileAttribute::System);
    task.m_szSelection_CmdPrefix = L"<";
    task.m_szSelection_CmdSuffix = L">";
    task.m_szSelection_FileSuffix = L";";
  }

  /// The clipboard after copying the selection's names and all that is in them.
  std::wstring Copied(DataObject* selection) {
    CopyNamesToClipboard(platform, WindowHandle::None, selection, false, true);
    return desktop.clipboard.text.value_or(L"(nothing)");
  }

  /// The task's command-line list, made without a window.
  std::wstring Listed(DataObject& selection, bool recursive = false, bool shortNames = false) {
    TaskLists lists(task, shortNames);
    frmClipboardProgress form(desktop.files, &selection, lists, shortNames, L"");
    form.BuildSelectionList(recursive);
    file = lists.File();
    whole = form.IsWhole();
    return lists.CmdLine();
  }

  /// Messages that the user has seen.
  std::ptrdiff_t Boxes() {
    return std::ranges::count(desktop.effects.All(), "MessageBox", &memory::Effect::call);
  }

  memory::Desktop desktop;
  Platform platform = desktop.Bundle();
  Data task;
  std::wstring file;
  bool whole = false;
  DataObject work{L"C:\\Work"};
};

TEST_F(SelectionList, SelectedFoldersAreWalkedInTheFileSystemsOrder) {
  EXPECT_EQ(Copied(&work), List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                 L"C:\\Work\\Deep\\c.log", L"C:\\Work\\Deep\\Deeper",
                                 L"C:\\Work\\Deep\\Deeper\\d.txt", L"C:\\Work\\hidden.txt"}));
  DataObject none;
  EXPECT_EQ(Copied(&none), L"");
  desktop.clipboard.text.reset();
  EXPECT_EQ(Copied(nullptr), L"") << "no data object at all";
}

TEST_F(SelectionList, NamesAreShortenedAndQuotedAsAsked) {
  DataObject names{L"C:\\Notes\\A.TXT", L"C:\\Notes\\my plan.txt", L"C:\\gone.txt"};
  EXPECT_EQ(Listed(names, false, true),
            L"<C:\\Notes\\A.TXT><C:\\Notes\\MYPLAN~1.TXT><C:\\gone.txt>");
  EXPECT_EQ(Listed(names), L"<C:\\Notes\\A.TXT><C:\\Notes\\my plan.txt><C:\\gone.txt>");
  task.m_lSelection_Options = Data::SelectionOptions_QIS;
  EXPECT_EQ(Listed(names), L"<C:\\Notes\\A.TXT><\"C:\\Notes\\my plan.txt\"><C:\\gone.txt>");
  EXPECT_EQ(file, L"C:\\Notes\\A.TXT;\"C:\\Notes\\my plan.txt\";C:\\gone.txt;");
  DataObject hostile{L"C:\\a\" /delete \"C:\\b.txt", L"C:\\Notes\\A.TXT"};
  EXPECT_EQ(Listed(hostile), L"<C:\\Notes\\A.TXT>") << "no name can leave its quotes";
}

TEST_F(SelectionList, FilterTakesFilesByTheirWholePathAndNoFolders) {
  DataObject names{L"C:\\Notes\\A.TXT", L"C:\\Work\\b.doc", L"C:\\Work"};
  struct {
    const wchar_t* filter;
    const wchar_t* listed;
  } const rows[] = {
      {L"", L"<C:\\Notes\\A.TXT><C:\\Work\\b.doc><C:\\Work>"},
      {L"*.log,*.txt", L"<C:\\Notes\\A.TXT>"},
      {L"C:\\WORK\\*", L"<C:\\Work\\b.doc>"},
      {L"a.txt", L""},
      {L",,", L""},
      {L"*.[d-t]?[ct]", L"<C:\\Notes\\A.TXT><C:\\Work\\b.doc>"},
  };
  for (const auto& row : rows) {
    task.m_szSelection_Filter = row.filter;
    EXPECT_EQ(Listed(names), row.listed) << Printable(row.filter);
  }
  task.m_szSelection_Filter = L"*.txt";
  EXPECT_EQ(Listed(work, true), L"<C:\\Work\\Deep\\Deeper\\d.txt><C:\\Work\\hidden.txt>")
      << "what is inside a folder that does not qualify itself";
}

TEST_F(SelectionList, ProgressWindowShowsTitleFoldersAndCount) {
  Copied(&work);
  EXPECT_EQ(desktop.dialogs.shownCount, 7u);
  EXPECT_EQ(desktop.dialogs.shownFolders.at(1), L"C:\\Work\\Deep\\Deeper");
  ClipboardLines lines;
  frmClipboardProgress(desktop.files, &work, lines, false, frmClipboardProgress::TaskCaption)
      .ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(desktop.dialogs.shownTitles,
            (std::vector<std::wstring>{L"Orvane - Copy to Clipboard Progress",
                                       L"Orvane - Selection Task Progress"}));
  desktop.faults.FailCall(1);  // no window
  ClipboardLines again;
  frmClipboardProgress(desktop.files, &work, again, false, L"")
      .ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(again.Text(), lines.Text());
}

TEST_F(SelectionList, CancelKeepsTheNamesFoundSoFar) {
  desktop.dialogs.foldersUntilCancel = 1;
  EXPECT_EQ(Copied(&work), List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                 L"C:\\Work\\Deep\\c.log", L"C:\\Work\\Deep\\Deeper"}));
  EXPECT_EQ(Boxes(), 0);
}

TEST_F(SelectionList, BehindTheWindowTheUserWaitsAsLongAsHeLikes) {
  desktop.files.AddFile(L"\\\\slow\\a\\1.txt");
  desktop.files.AddFile(L"\\\\slow\\b\\2.txt");
  desktop.files.Stall(L"\\\\slow\\a", 60'000);
  DataObject names{L"\\\\slow\\a", L"\\\\slow\\b"};
  EXPECT_EQ(Copied(&names),
            List({L"\\\\slow\\a", L"\\\\slow\\a\\1.txt", L"\\\\slow\\b", L"\\\\slow\\b\\2.txt"}));
  EXPECT_EQ(Boxes(), 0);
}

/// Presses Cancel as soon as a folder is shown that does not answer.
class Impatient : public ProgressView {
 public:
  explicit Impatient(SelectionWalk& walk) : m_walk(walk) {}

  void ShowFolder(const std::wstring& folder) override { m_waits = folder == L"Z:\\Work\\Deep"; }
  void ShowCount(std::size_t) override {
    if (m_waits) m_walk.Cancel();
  }

 private:
  SelectionWalk& m_walk;
  bool m_waits = false;
};

TEST_F(SelectionList, CancelAnswersWhileAFolderDoesNot) {
  desktop.files.AddFile(L"Z:\\Work\\Deep\\a.txt");
  desktop.files.Stall(L"Z:\\Work\\Deep", 60'000);
  ClipboardLines lines;
  SelectionWalk walk(desktop.files, lines, false);
  Impatient user(walk);
  FileNames names;
  names.Add(L"Z:\\Work");
  const std::uint32_t start = desktop.clock.Ticks();
  walk.Run(names, true, &user);
  EXPECT_TRUE(walk.IsCancelled());
  EXPECT_LT(desktop.clock.Ticks() - start, 100u);
}

TEST_F(SelectionList, WithoutAWindowEachSilentServerIsWaitedForOnce) {
  desktop.files.AddFile(L"\\\\live\\share\\d\\a.txt");
  desktop.files.Stall(L"\\\\srv\\share", 60'000);
  desktop.files.Stall(L"\\\\other\\share", 60'000);
  desktop.files.Stall(L"\\\\live\\share", 2'000);
  DataObject names{L"\\\\srv\\share\\a", L"\\\\srv\\share\\b", L"\\\\other\\share\\c",
                   L"\\\\live\\share\\d", L"C:\\Notes\\A.TXT"};
  const std::uint32_t start = desktop.clock.Ticks();
  EXPECT_EQ(Listed(names, true, true),
            L"<\\\\srv\\share\\a><\\\\srv\\share\\b><\\\\other\\share\\c><\\\\live\\share\\d>"
            L"<\\\\live\\share\\d\\a.txt><C:\\Notes\\A.TXT>");
  EXPECT_LT(desktop.clock.Ticks() - start, 20'000u);
  EXPECT_FALSE(whole);
}

TEST_F(SelectionList, SaysWhetherAnythingIsMissing) {
  using Scene = void (*)(memory::FileSystem&);
  const struct {
    const wchar_t* what;
    Scene scene;
    bool whole;
  } rows[] = {
      {L"nothing", [](memory::FileSystem&) {}, true},
      {L"no access", [](auto& files) { files.Add(Trouble::Unreadable, L"C:\\Work\\Deep"); }, true},
      {L"breaks off", [](auto& files) { files.Add(Trouble::BreaksOff, L"C:\\Work"); }, false},
      {L"share that fails",
       [](auto& files) {
         files.AddLink(L"C:\\Work\\Far", L"\\\\srv\\none");
         files.AddFolder(L"\\\\srv\\share\\d");
         files.Add(Trouble::Unreadable, L"\\\\srv\\share\\d");
       },
       false},
  };
  DataObject names{L"C:\\Work", L"\\\\srv\\share\\d"};
  for (const auto& row : rows) {
    memory::FileSystem files(desktop.clock, desktop.effects, desktop.faults);
    files.AddFile(L"C:\\Work\\Deep\\a.txt");
    files.AddFile(L"C:\\Work\\b.txt");
    files.AddFolder(L"\\\\srv\\share\\d");
    row.scene(files);
    ClipboardLines lines;
    frmClipboardProgress form(files, &names, lines, false, L"");
    form.BuildSelectionList(true);
    EXPECT_EQ(form.IsWhole(), row.whole) << row.what;
  }
  desktop.files.Add(Trouble::BreaksOff, L"C:\\Work");
  Copied(&work);
  EXPECT_EQ(Boxes(), 1);
}

TEST_F(SelectionList, UnreadableAndVanishedFoldersAreListedAndNotEntered) {
  desktop.files.Add(Trouble::Unreadable, L"C:\\Work\\Deep");
  DataObject names{L"C:\\Work", L"C:\\Gone"};
  EXPECT_EQ(Copied(&names), List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                  L"C:\\Work\\hidden.txt", L"C:\\Gone"}));
}

TEST_F(SelectionList, LinksAndCloudFoldersAreFoldersUnlessTheyLeadBack) {
  auto& files = desktop.files;
  files.AddFile(L"D:\\A\\Cloud\\c.txt");
  files.AddFolder(L"D:\\A\\Cloud").attributes |= FileAttribute::ReparsePoint;
  files.AddFile(L"D:\\B\\b.txt");
  files.AddLink(L"D:\\A\\ToB", L"D:\\B");
  files.AddLink(L"D:\\A\\ToBAgain", L"D:\\A\\ToB");
  files.AddLink(L"D:\\B\\ToA", L"D:\\A");
  files.AddLink(L"D:\\A\\Self", L"D:\\A");
  files.AddLink(L"D:\\A\\Up", L"D:\\");
  files.AddLink(L"D:\\A\\Nowhere", L"D:\\A\\Nowhere");
  DataObject names{L"D:\\A"};
  EXPECT_EQ(
      Copied(&names),
      List({L"D:\\A", L"D:\\A\\Cloud", L"D:\\A\\Cloud\\c.txt", L"D:\\A\\ToB", L"D:\\A\\ToB\\b.txt",
            L"D:\\A\\ToB\\ToA", L"D:\\A\\ToBAgain", L"D:\\A\\ToBAgain\\b.txt",
            L"D:\\A\\ToBAgain\\ToA", L"D:\\A\\Self", L"D:\\A\\Up", L"D:\\A\\Up\\A", L"D:\\A\\Up\\B",
            L"D:\\A\\Up\\B\\b.txt", L"D:\\A\\Up\\B\\ToA", L"D:\\A\\Nowhere"}));
}

TEST_F(SelectionList, FiveHundredLevelsAndNamesOfAnyLength) {
  std::wstring path = L"D:\\Deep";
  for (int level = 0; level < 500; ++level) path += L"\\folder" + std::to_wstring(level);
  desktop.files.AddFile(path + L"\\last.txt");
  const std::wstring longest = L"D:\\" + std::wstring(32'764, L'x');
  DataObject names{L"D:\\Deep", longest};
  EXPECT_TRUE(Copied(&names).ends_with(path + L"\\last.txt\r\n" + longest + L"\r\n"));
}

/// A file system in which every folder holds itself, and does not say that it is a link.
class EndlessFolders : public memory::FileSystem {
 public:
  using memory::FileSystem::FileSystem;

  std::optional<std::uint32_t> Attributes(const std::wstring&, const Patience&) override {
    return FileAttribute::Directory;
  }

  std::optional<FileIdentity> Identity(const std::wstring&, const Patience&) override {
    return identity;
  }

  std::optional<FileIdentity> identity;

  std::unique_ptr<DirectoryListing> List(const std::wstring&, const Patience&) override {
    class Itself : public DirectoryListing {
     public:
      bool Next(FoundFile& found) override {
        found = {L"again", FileAttribute::Directory};
        return !std::exchange(m_given, true);
      }
      bool IsWhole() const override { return true; }

     private:
      bool m_given = false;
    };
    return std::make_unique<Itself>();
  }
};

TEST_F(SelectionList, FolderInsideItselfEnds) {
  EndlessFolders endless(desktop.clock, desktop.effects, desktop.faults);
  for (const bool known : {false, true}) {
    if (known) endless.identity.emplace();
    ClipboardLines lines;
    frmClipboardProgress form(endless, &work, lines, false, L"");
    form.BuildSelectionList(true);
    EXPECT_LT(lines.Text().size(), known ? 100'000u : 10'000'000u);
    EXPECT_EQ(form.IsWhole(), known);
  }
}

}  // namespace
}  // namespace orvane::test
