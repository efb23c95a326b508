#include "Scene.h"
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

  frmClipboardProgress Form(DataObject& selection) {
    frmClipboardProgress form(desktop.files, desktop.clipboard);
    form.m_pSelection = &selection;
    return form;
  }

  /// The clipboard after copying the selection's names and all that is in them.
  std::wstring Copied(DataObject& selection) {
    Form(selection).BuildSelectionList(true);
    return desktop.clipboard.text.value_or(L"(nothing)");
  }

  /// The task's command-line list.
  std::wstring Listed(DataObject& selection, bool recursive = false, bool shortNames = false) {
    frmClipboardProgress form = Form(selection);
    form.m_Data = &task;
    form.m_bShortNames = shortNames;
    form.BuildSelectionList(recursive);
    file = form.m_szFile;
    return form.m_szCmdLine;
  }

  memory::Desktop desktop;
  Data task;
  std::wstring file;
  DataObject work{L"C:\\Work"};
};

TEST_F(SelectionList, SelectedFoldersAreWalkedInTheFileSystemsOrder) {
  EXPECT_EQ(Copied(work), List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                L"C:\\Work\\Deep\\c.log", L"C:\\Work\\Deep\\Deeper",
                                L"C:\\Work\\Deep\\Deeper\\d.txt", L"C:\\Work\\hidden.txt"}));
  DataObject none;
  EXPECT_EQ(Copied(none), L"");
  desktop.clipboard.text.reset();
  frmClipboardProgress(desktop.files, desktop.clipboard).BuildSelectionList(true);
  EXPECT_EQ(desktop.clipboard.text, L"") << "no data object at all";
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
  frmClipboardProgress form = Form(work);
  form.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(desktop.dialogs.shownCount, 7u);
  form.m_Data = &task;
  form.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_EQ(desktop.dialogs.shownTitles,
            (std::vector<std::wstring>{L"Orvane - Copy to Clipboard Progress",
                                       L"Orvane - Selection Task Progress"}));
  EXPECT_EQ(desktop.dialogs.shownFolders.at(1), L"C:\\Work\\Deep\\Deeper");
}

TEST_F(SelectionList, CancelKeepsTheNamesFoundSoFar) {
  desktop.dialogs.foldersUntilCancel = 1;
  frmClipboardProgress form = Form(work);
  form.ShowModal(desktop.dialogs, WindowHandle::None);
  EXPECT_TRUE(form.m_bStop);
  EXPECT_EQ(desktop.clipboard.text, List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
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

TEST_F(SelectionList, UnreadableVanishedAndLinkedFoldersAreListedAndNotEntered) {
  desktop.files.Add(Trouble::Unreadable, L"C:\\Work\\Deep");
  desktop.files.AddFolder(L"C:\\Work\\Loop").attributes |= FileAttribute::ReparsePoint;
  desktop.files.AddFile(L"C:\\Work\\Loop\\again.txt");
  DataObject names{L"C:\\Work", L"C:\\Gone"};
  EXPECT_EQ(Copied(names), List({L"C:\\Work", L"C:\\Work\\b.doc", L"C:\\Work\\Deep",
                                 L"C:\\Work\\hidden.txt", L"C:\\Work\\Loop", L"C:\\Gone"}));
}

TEST_F(SelectionList, FiveHundredLevelsAndNamesOfAnyLength) {
  std::wstring path = L"D:\\Deep";
  for (int level = 0; level < 500; ++level) path += L"\\folder" + std::to_wstring(level);
  desktop.files.AddFile(path + L"\\last.txt");
  const std::wstring longest = L"D:\\" + std::wstring(32'764, L'x');
  DataObject names{L"D:\\Deep", longest};
  EXPECT_TRUE(Copied(names).ends_with(path + L"\\last.txt\r\n" + longest + L"\r\n"));
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
        found = {L"again", FileAttribute::Directory};
        return !std::exchange(m_given, true);
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
}  // namespace orvane::test
