#include <algorithm>
#include <fstream>

#include "platform/AnyDesktop.h"

namespace orvane {
namespace {

using Open = FileSystem::Open;
using List = std::vector<std::wstring>;

/// On Linux a mounted directory has to behave like the rest of the memory file system.
class FileSystemContract : public AnyDisk {
 protected:
  FileSystemContract() {
    if (std::string_view(GetParam()) != "mount") return;
    std::filesystem::create_directory(m_scratch.Path() / "sUB");
    m_memory.files.Mount(L"E:", m_scratch.Path());
    m_root = L"E:\\Sub";
  }
  ~FileSystemContract() override { files.ChangeDirectory(m_workingDirectory); }

  std::string Content(const std::wstring& name) {
    const auto bytes = files.Read(At(name));
    if (!bytes) return "(none)";
    return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
  }

  /// Sorted names with "/" after folders.
  List Names(const std::wstring& folder) {
    List names;
    const Patience patience = 250;
    const auto listing = files.List(folder, patience);
    if (!listing) return {L"(none)"};
    for (FoundFile found; listing->Next(found);) {
      const bool isFolder = (found.attributes & FileAttribute::Directory) != 0;
      names.push_back(found.name + (isFolder ? L"/" : L""));
      EXPECT_FALSE(found.isLink);
    }
    EXPECT_TRUE(listing->IsWhole());
    std::ranges::sort(names);
    return names;
  }

 private:
  std::wstring m_workingDirectory = files.WorkingDirectory();
};

#ifdef _WIN32
INSTANTIATE_TEST_SUITE_P(, FileSystemContract, EveryDesktop(), NameOfDesktop);
#else
INSTANTIATE_TEST_SUITE_P(, FileSystemContract, testing::Values("memory", "mount"), NameOfDesktop);
#endif

TEST_P(FileSystemContract, WritesAndReadsWholeFiles) {
  using namespace std::literals;
  EXPECT_TRUE(Put(L"a.txt", "one\0two"sv));
  EXPECT_EQ(Content(L"A.TXT"), "one\0two"s);
  EXPECT_TRUE(Put(L"a.txt", "three", Open::Append));
  EXPECT_EQ(Content(L"a.txt"), "one\0twothree"s);
  EXPECT_TRUE(Put(L"A.txt", "new"));
  EXPECT_EQ(Content(L"a.txt"), "new");
  EXPECT_TRUE(Put(L"new.txt", "made", Open::Append));
  EXPECT_EQ(Content(L"new.txt"), "made");
  EXPECT_TRUE(Put(L"empty"));
  EXPECT_EQ(Content(L"empty"), "");
  EXPECT_EQ(Names(m_root), (List{L"a.txt", L"empty", L"new.txt"}));
}

TEST_P(FileSystemContract, SaysWhyItCannotReadOrWrite) {
  MakeFolder(L"Folder");
  Put(L"file", "12345");
  EXPECT_FALSE(files.Read(At(L"missing")));
  EXPECT_EQ(files.LastError(), 2u);
  EXPECT_FALSE(files.Read(At(L"missing\\file")));
  EXPECT_EQ(files.LastError(), 3u);
  EXPECT_FALSE(files.OpenToWrite(At(L"missing\\file"), Open::CreateAnew));
  EXPECT_EQ(files.LastError(), 3u);
  EXPECT_FALSE(files.Read(At(L"Folder")));
  EXPECT_EQ(files.LastError(), 5u);
  EXPECT_FALSE(files.OpenToWrite(At(L"Folder"), Open::Append));
  EXPECT_EQ(files.LastError(), 5u);
  EXPECT_FALSE(files.Read(At(L"file"), 4)) << "over the limit";
  EXPECT_TRUE(files.Read(At(L"file"), 5));
  EXPECT_FALSE(files.Read(L""));
}

TEST_P(FileSystemContract, SharesAFileThatIsWrittenWithNobody) {
  Put(L"log", "old");
  {
    const auto open = files.OpenToWrite(At(L"log"), Open::Append);
    ASSERT_TRUE(open);
    EXPECT_EQ(Content(L"log"), "(none)");
    EXPECT_EQ(files.LastError(), 32u);
    EXPECT_FALSE(Put(L"log", "new"));
    EXPECT_FALSE(files.Remove(At(L"log")));
    Put(L"other", "x");
    EXPECT_FALSE(files.Replace(At(L"other"), At(L"log")));
  }
  EXPECT_EQ(Content(L"log"), "old");
}

TEST_P(FileSystemContract, RemovesAndReplacesFiles) {
  MakeFolder(L"Folder");
  Put(L"a", "A");
  Put(L"b", "B");
  EXPECT_TRUE(files.Replace(At(L"a"), At(L"B")));
  EXPECT_EQ(Content(L"b"), "A");
  EXPECT_EQ(Content(L"a"), "(none)");
  EXPECT_TRUE(files.Replace(At(L"b"), At(L"Folder\\c")));
  EXPECT_FALSE(files.Replace(At(L"missing"), At(L"Folder\\c")));
  EXPECT_EQ(Content(L"folder\\C"), "A");
  EXPECT_TRUE(files.Remove(At(L"Folder\\c")));
  EXPECT_EQ(Names(At(L"Folder")), List{});
  EXPECT_FALSE(files.Remove(At(L"Folder\\c")));
  EXPECT_EQ(files.LastError(), 2u);
  EXPECT_FALSE(files.Remove(At(L"Folder")));
}

TEST_P(FileSystemContract, TellsFoldersFromFiles) {
  MakeFolder(L"Folder");
  Put(L"file");
  const auto kind = [this](const std::wstring& path) {
    const auto attributes = files.Attributes(path);
    if (!attributes) return "nothing";
    return (*attributes & FileAttribute::Directory) != 0 ? "folder" : "file";
  };
  EXPECT_STREQ(kind(At(L"FOLDER")), "folder");
  EXPECT_STREQ(kind(At(L"Folder\\")), "folder");
  EXPECT_STREQ(kind(m_root.substr(0, 3)), "folder");
  EXPECT_STREQ(kind(At(L"file")), "file");
  EXPECT_STREQ(kind(At(L"none")), "nothing");
  EXPECT_STREQ(kind(L""), "nothing");
}

TEST_P(FileSystemContract, KnowsWhatIsOneAndTheSame) {
  MakeFolder(L"A long name with blanks");
  MakeFolder(L"Other");
  Put(L"file");
  const auto folder = files.Identity(At(L"A long name with blanks"));
  EXPECT_TRUE(folder);
  EXPECT_EQ(files.Identity(files.ShortName(At(L"a LONG name with blanks")) + L"\\"), folder);
  EXPECT_EQ(files.Identity(At(L"Other\\..\\A long name with blanks")), folder);
  EXPECT_NE(files.Identity(At(L"Other")), folder);
  EXPECT_NE(files.Identity(At(L"file")), folder);
  EXPECT_FALSE(files.Identity(At(L"none")));
}

TEST_P(FileSystemContract, ListsFolders) {
  MakeFolder(L"Folder");
  MakeFolder(L"Folder\\Sub");
  Put(L"Folder\\R&D \u00e4\u05d0.txt");
  Put(L"Folder\\.hidden");
  const List expected{L".hidden", L"R&D \u00e4\u05d0.txt", L"Sub/"};
  EXPECT_EQ(Names(At(L"Folder")), expected);
  EXPECT_EQ(Names(At(L"folder\\")), expected);
  EXPECT_EQ(Names(At(L"Folder\\Sub")), List{});
  for (const std::wstring& path : {At(L"Folder\\None"), At(L"Folder\\.hidden"), std::wstring()}) {
    EXPECT_EQ(Names(path), List{L"(none)"}) << path;
  }
}

TEST_P(FileSystemContract, TakesPathsOfAnyLength) {
  std::wstring folder = std::wstring(100, L'd');
  for (int depth = 0; depth < 6; ++depth) {
    MakeFolder(folder);
    folder += L"\\" + std::wstring(100, L'd');
  }
  MakeFolder(folder);
  const std::wstring name = std::wstring(200, L'n') + L".txt";
  EXPECT_TRUE(Put(folder + L"\\" + name, "deep"));
  EXPECT_EQ(Content(folder + L"\\" + name), "deep");
  EXPECT_TRUE(files.Attributes(At(folder)));
  EXPECT_EQ(Names(At(folder)), List{name});
  EXPECT_TRUE(files.Replace(At(folder + L"\\" + name), At(folder + L"\\b")));
  EXPECT_TRUE(files.Remove(At(folder + L"\\b")));
}

TEST_P(FileSystemContract, KnowsShortNames) {
  Put(L"A long name with blanks.html", "found");
  const std::wstring name = files.ShortName(At(L"A long name with blanks.html"));
  ASSERT_FALSE(name.empty());
  const std::wstring last = name.substr(name.rfind(L'\\') + 1);
  EXPECT_LE(last.size(), 12u);
  EXPECT_EQ(last.find(L' '), std::wstring::npos);
  EXPECT_EQ(files.Read(name), Bytes("found"));
  EXPECT_EQ(files.ShortName(At(L"none")), L"");
}

TEST_P(FileSystemContract, TakesRelativePathsFromTheWorkingDirectory) {
  MakeFolder(L"Folder");
  Put(L"Folder\\a", "A");
  EXPECT_TRUE(files.ChangeDirectory(At(L"Folder")));
  EXPECT_EQ(files.WorkingDirectory(), At(L"Folder"));
  EXPECT_TRUE(files.Read(L"a"));
  EXPECT_TRUE(files.Read(L"..\\Folder\\a"));
  EXPECT_FALSE(files.ChangeDirectory(At(L"None")));
  EXPECT_FALSE(files.ChangeDirectory(At(L"Folder\\a")));
  EXPECT_EQ(files.WorkingDirectory(), At(L"Folder"));
}

#ifndef _WIN32
class Mount : public AnyDisk {
 protected:
  void Write(const char* name, const char* content) {
    std::ofstream(m_scratch.Path() / name) << content;
  }
  std::wstring Names(const std::wstring& folder) {
    std::wstring names;
    const Patience patience = 250;
    const auto listing = files.List(folder, patience);
    for (FoundFile found; listing && listing->Next(found);)
      names += found.name + (found.isLink ? L"->|" : L"|");
    return names;
  }
};

INSTANTIATE_TEST_SUITE_P(, Mount, EveryDesktop(), NameOfDesktop);

TEST_P(Mount, IsNeverWrittenTo) {
  Write("b.txt", "old");
  Write("A.txt", "first");
  m_memory.files.Mount(L"E:", m_scratch.Path());
  m_root = L"E:";
  EXPECT_EQ(Names(L"E:\\"), L"A.txt|b.txt|");
  EXPECT_TRUE(Put(L"B.txt", "new"));
  EXPECT_TRUE(Put(L"c.txt", "made"));
  EXPECT_TRUE(files.Remove(L"E:\\A.txt"));
  EXPECT_EQ(Names(L"E:\\"), L"b.txt|c.txt|");
  EXPECT_EQ(files.Read(L"E:\\b.txt"), Bytes("new"));
  std::string content;
  std::ifstream(m_scratch.Path() / "b.txt") >> content;
  EXPECT_EQ(content, "old");
  EXPECT_TRUE(std::filesystem::exists(m_scratch.Path() / "A.txt"));
  EXPECT_FALSE(std::filesystem::exists(m_scratch.Path() / "c.txt"));
}

TEST_P(Mount, FollowsLinksOneLevelAtATime) {
  std::filesystem::create_directory_symlink(m_scratch.Path(), m_scratch.Path() / "loop");
  std::filesystem::create_symlink("nowhere", m_scratch.Path() / "broken");
  Write("\xE4 no UTF-8", "");
  m_memory.files.Mount(L"E:", m_scratch.Path());
  EXPECT_EQ(Names(L"E:\\"), L"loop->|");
  EXPECT_EQ(Names(L"E:\\loop\\loop\\loop"), L"loop->|");
  EXPECT_EQ(files.Identity(L"E:\\loop\\loop"), files.Identity(L"E:\\"));
  EXPECT_EQ(files.Attributes(L"E:\\loop"), FileAttribute::Directory | FileAttribute::ReparsePoint);
}
#endif

}  // namespace
}  // namespace orvane
