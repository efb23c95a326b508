#include <gtest/gtest.h>

#include "commands/ClipboardInUse.h"
#include "commands/frmClipboardProgress.h"
#include "platform/memory/DataObject.h"
#include "platform/memory/Desktop.h"

namespace orvane {
namespace {

using memory::DataObject;
using Data = clsOrvaneData;

std::wstring Lines(std::initializer_list<std::wstring_view> names) {
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
    task.m_lType = Data::TypeSelectionTask;
    task.m_szSelection_CmdPrefix = L"<";
    task.m_szSelection_CmdSuffix = L">";
    task.m_szSelection_FileSuffix = L";";
  }

  frmClipboardProgress Form(DataObject& selection) {
    frmClipboardProgress form(desktop.files, desktop.clipboard);
    form.m_pSelection = &selection;
    return form;
  }

  /// The clipboard after copying the selection's names.
  std::wstring Copied(DataObject& selection, bool recursive, bool shortNames = false) {
    frmClipboardProgress form = Form(selection);
    form.m_bShortNames = shortNames;
    form.BuildSelectionList(recursive);
    return desktop.clipboard.text.value_or(L"(nothing)");
  }

  /// The task's command-line list.
  std::wstring Listed(DataObject& selection, bool recursive, bool shortNames = false) {
    frmClipboardProgress form = Form(selection);
    form.m_Data = &task;
    form.m_bShortNames = shortNames;
    form.BuildSelectionList(recursive);
    file = form.m_szFile;
    return form.m_szCmdLine;
  }

  memory::Desktop desktop;
  clsOrvaneData task;
  std::wstring file;
  DataObject work{L"C:\\Work"};
};

TEST_F(SelectionList, SelectedFoldersAreWalkedInTheFileSystemsOrder) {
  EXPECT_EQ(Copied(work, true), Lines({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                       L"C:\\Work\\Deep\\c.log", L"C:\\Work\\Deep\\Deeper",
                                       L"C:\\Work\\Deep\\Deeper\\d.txt", L"C:\\Work\\hidden.txt"}));
}

TEST_F(SelectionList, ShortNamesKeepALongOneThatHasNone) {
  DataObject names{L"C:\\Notes\\my plan.txt", L"C:\\gone away.txt"};
  EXPECT_EQ(Copied(names, false, true), Lines({L"C:\\Notes\\MYPLAN~1.TXT", L"C:\\gone away.txt"}));
  EXPECT_EQ(Listed(names, false, true), L"<C:\\Notes\\MYPLAN~1.TXT><C:\\gone away.txt>");
}

TEST_F(SelectionList, TaskQuotesOnlyWhenAskedAndOnlyLongNamesWithABlank) {
  DataObject names{L"C:\\Notes\\A.TXT", L"C:\\Notes\\my plan.txt"};
  EXPECT_EQ(Listed(names, false), L"<C:\\Notes\\A.TXT><C:\\Notes\\my plan.txt>");
  task.m_lSelection_Options = Data::SelectionOptions_QIS;
  EXPECT_EQ(Listed(names, false), L"<C:\\Notes\\A.TXT><\"C:\\Notes\\my plan.txt\">");
  EXPECT_EQ(file, L"C:\\Notes\\A.TXT;\"C:\\Notes\\my plan.txt\";");
  EXPECT_EQ(Copied(names, false), Lines({L"C:\\Notes\\A.TXT", L"C:\\Notes\\my plan.txt"}));
}

TEST_F(SelectionList, NoNameCanLeaveItsQuotes) {
  DataObject names{L"C:\\a\" /delete \"C:\\b.txt", L"C:\\Notes\\A.TXT"};
  task.m_lSelection_Options = Data::SelectionOptions_QIS;
  EXPECT_EQ(Listed(names, false), L"<C:\\Notes\\A.TXT>");
}

TEST_F(SelectionList, FilterTakesFilesByTheirWholePathAndNoFolders) {
  DataObject names{L"C:\\Notes\\A.TXT", L"C:\\Work\\b.doc", L"C:\\Work"};
  struct {
    const wchar_t* filter;
    const wchar_t* listed;
  } const rows[] = {
      {L"", L"<C:\\Notes\\A.TXT><C:\\Work\\b.doc><C:\\Work>"},
      {L"*.txt", L"<C:\\Notes\\A.TXT>"},
      {L"*.log,*.txt", L"<C:\\Notes\\A.TXT>"},
      {L"C:\\WORK\\*", L"<C:\\Work\\b.doc>"},
      {L"a.txt", L""},
      {L",,", L""},
      {L"*", L"<C:\\Notes\\A.TXT><C:\\Work\\b.doc>"},
      {L"[", L""},
      {L"*.[d-t]?[ct]", L"<C:\\Notes\\A.TXT><C:\\Work\\b.doc>"},
  };
  for (const auto& row : rows) {
    task.m_szSelection_Filter = row.filter;
    EXPECT_EQ(Listed(names, false), row.listed) << "filter of row " << (&row - rows);
  }
}

TEST_F(SelectionList, TaskListsWhatIsInsideAFolderThatDoesNotQualifyItself) {
  task.m_szSelection_Filter = L"*.txt";
  EXPECT_EQ(Listed(work, true), L"<C:\\Work\\Deep\\Deeper\\d.txt><C:\\Work\\hidden.txt>");
}

TEST_F(SelectionList, EmptyAndUnreadableSelections) {
  DataObject none;
  EXPECT_EQ(Copied(none, false), L"");
  frmClipboardProgress form(desktop.files, desktop.clipboard);
  form.BuildSelectionList(true);  // no data object at all
  EXPECT_EQ(desktop.clipboard.text, L"");

  DataObject locked{L"C:\\Notes\\A.TXT"};
  locked.failure = DataObject::LockFailed;
  try {
    Copied(locked, false);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), DataObject::LockFailed);
  }
}

TEST_F(SelectionList, ClipboardThatIsHeldOpenIsAnErrorFitForTheUser) {
  desktop.clipboard.heldOpen = true;
  EXPECT_THROW(Copied(work, false), ClipboardInUse);
  EXPECT_EQ(Listed(work, false), L"<C:\\Work>");  // the task's own business comes later
}

TEST_F(SelectionList, ProgressWindowShowsTitleFoldersAndCount) {
  frmClipboardProgress form = Form(work);
  form.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Orvane - Copy to Clipboard Progress");
  EXPECT_EQ(desktop.dialogs.shownFolders,
            (std::vector<std::wstring>{L"C:\\Work\\Deep", L"C:\\Work\\Deep\\Deeper"}));
  EXPECT_EQ(desktop.dialogs.shownCount, 7u);

  frmClipboardProgress taskForm = Form(work);
  taskForm.m_Data = &task;
  taskForm.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(desktop.dialogs.shownTitles.back(), L"Orvane - Selection Task Progress");
}

TEST_F(SelectionList, CancelKeepsTheNamesFoundSoFar) {
  desktop.dialogs.foldersUntilCancel = 1;
  frmClipboardProgress form = Form(work);
  form.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_TRUE(form.m_bStop);
  EXPECT_EQ(desktop.clipboard.text, Lines({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                           L"C:\\Work\\Deep\\c.log", L"C:\\Work\\Deep\\Deeper"}));
}

/// Presses Cancel as soon as a folder is shown that does not answer.
class Impatient : public ProgressView {
 public:
  explicit Impatient(frmClipboardProgress& form) : m_form(form) {}

  void ShowFolder(const std::wstring& folder) override { m_waits = folder == L"C:\\Work\\Deep"; }
  void ShowCount(std::size_t) override {
    if (m_waits) m_form.Cancel();
  }

 private:
  frmClipboardProgress& m_form;
  bool m_waits = false;
};

TEST_F(SelectionList, CancelAnswersWhileAFolderDoesNot) {
  desktop.files.Stall(L"C:\\Work\\Deep", 60'000);
  frmClipboardProgress form = Form(work);
  Impatient user(form);
  const std::uint32_t start = desktop.clock.Ticks();
  form.Run(user);
  EXPECT_TRUE(form.m_bStop);
  EXPECT_LT(desktop.clock.Ticks() - start, 100u);
}

TEST_F(SelectionList, ASilentServerIsWaitedForOnce) {
  desktop.files.Stall(L"\\\\srv\\share", 60'000);
  DataObject names{L"\\\\srv\\share\\a", L"\\\\srv\\share\\b", L"C:\\Notes\\A.TXT"};
  const std::uint32_t start = desktop.clock.Ticks();
  EXPECT_EQ(Listed(names, true, true), L"<\\\\srv\\share\\a><\\\\srv\\share\\b><C:\\Notes\\A.TXT>");
  EXPECT_LT(desktop.clock.Ticks() - start, 6'000u);
}

TEST_F(SelectionList, FailureBehindTheWindowReachesTheCaller) {
  desktop.clipboard.heldOpen = true;
  frmClipboardProgress form = Form(work);
  EXPECT_THROW(form.ShowModal(desktop.dialogs, WindowHandle::None), ClipboardInUse);
}

TEST_F(SelectionList, FoldersThatCannotBeListedAreListedThemselves) {
  desktop.files.Add(memory::FileSystem::Trouble::Unreadable, L"C:\\Work\\Deep");
  EXPECT_EQ(Copied(work, true),
            Lines({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep", L"C:\\Work\\hidden.txt"}));
  DataObject gone{L"C:\\Gone"};
  EXPECT_EQ(Copied(gone, true), Lines({L"C:\\Gone"}));
}

TEST_F(SelectionList, LinksAreListedAndNotEntered) {
  desktop.files.AddFolder(L"C:\\Work\\Loop").attributes |= FileAttribute::ReparsePoint;
  desktop.files.AddFile(L"C:\\Work\\Loop\\again.txt");
  EXPECT_EQ(Copied(work, true).find(L"again"), std::wstring::npos);
  EXPECT_NE(Copied(work, true).find(L"C:\\Work\\Loop\r\n"), std::wstring::npos);
}

TEST_F(SelectionList, FiveHundredLevelsAndNamesOfAnyLength) {
  std::wstring path = L"D:\\Deep";
  for (int level = 0; level < 500; ++level) path += L"\\folder" + std::to_wstring(level);
  desktop.files.AddFile(path + L"\\last.txt");
  DataObject deep{L"D:\\Deep"};
  EXPECT_TRUE(Copied(deep, true).ends_with(path + L"\\last.txt\r\n"));

  const std::wstring longest = L"D:\\" + std::wstring(32'764, L'x');
  DataObject one{longest};
  EXPECT_EQ(Copied(one, false), longest + L"\r\n");
}

/// A file system in which every folder holds itself, and does not say that it is a link.
class EndlessFolders : public memory::FileSystem {
 public:
  using memory::FileSystem::FileSystem;

  std::optional<std::uint32_t> Attributes(const std::wstring&, const Patience&) override {
    return FileAttribute::Directory;
  }

  std::unique_ptr<DirectoryListing> List(const std::wstring&, const Patience&) override {
    class Itself : public DirectoryListing {
     public:
      bool Next(FoundFile& found) override {
        if (m_given) return false;
        found = {L"again", FileAttribute::Directory};
        return m_given = true;
      }

     private:
      bool m_given = false;
    };
    return std::make_unique<Itself>();
  }
};

TEST_F(SelectionList, FolderInsideItselfEnds) {
  EndlessFolders endless(desktop.clock, desktop.effects, desktop.faults);
  frmClipboardProgress form(endless, desktop.clipboard);
  form.m_pSelection = &work;
  form.BuildSelectionList(true);
  EXPECT_LT(desktop.clipboard.text->size(), 10'000'000u);
}

}  // namespace
}  // namespace orvane
