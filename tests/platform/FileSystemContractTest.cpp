#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "platform/ScratchFolder.h"
#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/FileSystem.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  memory::FileSystem& files = desktop.files;
  std::wstring root = L"D:\\Scratch";
  static constexpr int ManyFiles = 20'000;

  OnMemory() { files.AddFolder(root); }
  void MakeFolder(const std::wstring& path) { files.AddFolder(path); }
};

#ifdef _WIN32
struct OnWindows {
  ScratchFolder scratch;
  win32::FileSystem files;
  std::wstring root = scratch.Path().wstring();
  static constexpr int ManyFiles = 2'000;  // Wine looks through the folder for each new one
  std::wstring workingDirectory = files.WorkingDirectory();

  ~OnWindows() { files.ChangeDirectory(workingDirectory); }
  void MakeFolder(const std::wstring& path) {
    CreateDirectoryW((L"\\\\?\\" + path).c_str(), nullptr);
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
/// A mounted directory has to behave like the rest of the memory file system.
struct OnMount {
  ScratchFolder scratch;
  memory::Desktop desktop;
  memory::FileSystem& files = desktop.files;
  std::wstring root = L"E:\\Sub";
  static constexpr int ManyFiles = 20'000;

  OnMount() {
    std::filesystem::create_directory(scratch.Path() / "sUB");
    files.Mount(L"E:", scratch.Path());
  }
  void MakeFolder(const std::wstring& path) { files.AddFolder(path); }
};
using BackEnds = testing::Types<OnMemory, OnMount>;
#endif

std::vector<std::byte> Bytes(std::string_view text) {
  const auto* first = reinterpret_cast<const std::byte*>(text.data());
  return {first, first + text.size()};
}

template <class BackEnd>
class FileSystemContract : public testing::Test {
 protected:
  static constexpr std::uint32_t Patience = 250;

  std::wstring At(const std::wstring& name) { return m_backEnd.root + L"\\" + name; }

  bool Put(const std::wstring& name, std::string_view content,
           FileSystem::Open how = FileSystem::Open::CreateAnew) {
    const auto file = files.OpenToWrite(At(name), how);
    return file && file->Write(Bytes(content));
  }

  std::string Content(const std::wstring& name) {
    const auto bytes = files.Read(At(name));
    if (!bytes) return "(none)";
    return {reinterpret_cast<const char*>(bytes->data()), bytes->size()};
  }

  /// Sorted names with "/" after folders.
  std::vector<std::wstring> Names(const std::wstring& folder) {
    std::vector<std::wstring> names;
    const auto listing = files.List(folder, Patience);
    if (!listing) return {L"(none)"};
    for (FoundFile found; listing->Next(found);) {
      const bool isFolder = (found.attributes & FileAttribute::Directory) != 0;
      names.push_back(found.name + (isFolder ? L"/" : L""));
    }
    std::ranges::sort(names);
    return names;
  }

  BackEnd m_backEnd;
  FileSystem& files = m_backEnd.files;
};
TYPED_TEST_SUITE(FileSystemContract, BackEnds, );

TYPED_TEST(FileSystemContract, WritesAndReadsWholeFiles) {
  using namespace std::literals;
  EXPECT_TRUE(this->Put(L"a.txt", "one\0two"sv));
  EXPECT_EQ(this->Content(L"A.TXT"), "one\0two"s);
  EXPECT_TRUE(this->Put(L"a.txt", "three", FileSystem::Open::Append));
  EXPECT_EQ(this->Content(L"a.txt"), "one\0twothree"s);
  EXPECT_TRUE(this->Put(L"A.txt", "new"));
  EXPECT_EQ(this->Content(L"a.txt"), "new");
  EXPECT_TRUE(this->Put(L"new.txt", "made", FileSystem::Open::Append));
  EXPECT_EQ(this->Content(L"new.txt"), "made");
  EXPECT_TRUE(this->Put(L"empty", ""));
  EXPECT_EQ(this->Content(L"empty"), "");
  EXPECT_EQ(this->Names(this->m_backEnd.root),
            (std::vector<std::wstring>{L"a.txt", L"empty", L"new.txt"}));
}

TYPED_TEST(FileSystemContract, SaysWhyItCannotReadOrWrite) {
  this->m_backEnd.MakeFolder(this->At(L"Folder"));
  this->Put(L"file", "12345");
  EXPECT_FALSE(this->files.Read(this->At(L"missing")));
  EXPECT_EQ(this->files.LastError(), 2u);
  EXPECT_FALSE(this->files.Read(this->At(L"missing\\file")));
  EXPECT_EQ(this->files.LastError(), 3u);
  EXPECT_FALSE(this->files.OpenToWrite(this->At(L"missing\\file"), FileSystem::Open::CreateAnew));
  EXPECT_EQ(this->files.LastError(), 3u);
  EXPECT_FALSE(this->files.Read(this->At(L"Folder")));
  EXPECT_EQ(this->files.LastError(), 5u);
  EXPECT_FALSE(this->files.OpenToWrite(this->At(L"Folder"), FileSystem::Open::Append));
  EXPECT_EQ(this->files.LastError(), 5u);
  EXPECT_FALSE(this->files.Read(this->At(L"file"), 4));
  EXPECT_TRUE(this->files.Read(this->At(L"file"), 5));
  EXPECT_FALSE(this->files.Read(L""));
  EXPECT_FALSE(this->files.Attributes(L""));
}

TYPED_TEST(FileSystemContract, SharesAFileThatIsWrittenWithNobody) {
  this->Put(L"log", "old");
  {
    const auto open = this->files.OpenToWrite(this->At(L"log"), FileSystem::Open::Append);
    ASSERT_TRUE(open);
    EXPECT_EQ(this->Content(L"log"), "(none)");
    EXPECT_EQ(this->files.LastError(), 32u);
    EXPECT_FALSE(this->Put(L"log", "new"));
    EXPECT_FALSE(this->files.Remove(this->At(L"log")));
    this->Put(L"other", "x");
    EXPECT_FALSE(this->files.Replace(this->At(L"other"), this->At(L"log")));
  }
  EXPECT_EQ(this->Content(L"log"), "old");
}

TYPED_TEST(FileSystemContract, RemovesAndReplacesFiles) {
  this->m_backEnd.MakeFolder(this->At(L"Folder"));
  this->Put(L"a", "A");
  this->Put(L"b", "B");
  EXPECT_TRUE(this->files.Replace(this->At(L"a"), this->At(L"B")));
  EXPECT_EQ(this->Content(L"b"), "A");
  EXPECT_EQ(this->Content(L"a"), "(none)");
  EXPECT_TRUE(this->files.Replace(this->At(L"b"), this->At(L"Folder\\c")));
  EXPECT_EQ(this->Content(L"folder\\C"), "A");
  EXPECT_FALSE(this->files.Replace(this->At(L"missing"), this->At(L"Folder\\c")));
  EXPECT_EQ(this->Content(L"Folder\\c"), "A");
  EXPECT_TRUE(this->files.Remove(this->At(L"Folder\\c")));
  EXPECT_EQ(this->Names(this->At(L"Folder")), std::vector<std::wstring>{});
  EXPECT_FALSE(this->files.Remove(this->At(L"Folder\\c")));
  EXPECT_EQ(this->files.LastError(), 2u);
  EXPECT_FALSE(this->files.Remove(this->At(L"Folder")));
}

TYPED_TEST(FileSystemContract, TellsFoldersFromFiles) {
  this->m_backEnd.MakeFolder(this->At(L"Folder"));
  this->Put(L"file", "");
  const auto isFolder = [this](const std::wstring& path) {
    const auto attributes = this->files.Attributes(path);
    return attributes ? ((*attributes & FileAttribute::Directory) != 0 ? 1 : 0) : -1;
  };
  EXPECT_EQ(isFolder(this->At(L"FOLDER")), 1);
  EXPECT_EQ(isFolder(this->At(L"Folder\\")), 1);
  EXPECT_EQ(isFolder(this->m_backEnd.root.substr(0, 3)), 1);
  EXPECT_EQ(isFolder(this->At(L"file")), 0);
  EXPECT_EQ(isFolder(this->At(L"none")), -1);
}

TYPED_TEST(FileSystemContract, ListsFolders) {
  this->m_backEnd.MakeFolder(this->At(L"Folder"));
  this->m_backEnd.MakeFolder(this->At(L"Folder\\Sub"));
  this->Put(L"Folder\\R&D \u00e4\u05d0.txt", "");
  this->Put(L"Folder\\.hidden", "");
  const std::vector<std::wstring> expected{L".hidden", L"R&D \u00e4\u05d0.txt", L"Sub/"};
  EXPECT_EQ(this->Names(this->At(L"Folder")), expected);
  EXPECT_EQ(this->Names(this->At(L"folder\\")), expected);
  EXPECT_EQ(this->Names(this->At(L"Folder\\Sub")), std::vector<std::wstring>{});
  EXPECT_EQ(this->Names(this->At(L"Folder\\None")), std::vector<std::wstring>{L"(none)"});
  EXPECT_EQ(this->Names(this->At(L"Folder\\.hidden")), std::vector<std::wstring>{L"(none)"});
  EXPECT_EQ(this->Names(L""), std::vector<std::wstring>{L"(none)"});
}

TYPED_TEST(FileSystemContract, TakesPathsOfAnyLength) {
  std::wstring folder = std::wstring(100, L'd');
  for (int depth = 0; depth < 6; ++depth) {
    this->m_backEnd.MakeFolder(this->At(folder));
    folder += L"\\" + std::wstring(100, L'd');
  }
  this->m_backEnd.MakeFolder(this->At(folder));
  const std::wstring name = std::wstring(200, L'n') + L".txt";
  EXPECT_TRUE(this->Put(folder + L"\\" + name, "deep"));
  EXPECT_EQ(this->Content(folder + L"\\" + name), "deep");
  EXPECT_TRUE(this->files.Attributes(this->At(folder)));
  EXPECT_EQ(this->Names(this->At(folder)), std::vector<std::wstring>{name});
  EXPECT_TRUE(this->files.Replace(this->At(folder + L"\\" + name), this->At(folder + L"\\b")));
  EXPECT_TRUE(this->files.Remove(this->At(folder + L"\\b")));
}

TYPED_TEST(FileSystemContract, KnowsShortNames) {
  this->Put(L"A long name with blanks.html", "found");
  const std::wstring name =
      this->files.ShortName(this->At(L"A long name with blanks.html")).substr();
  ASSERT_FALSE(name.empty());
  const std::wstring last = name.substr(name.rfind(L'\\') + 1);
  EXPECT_LE(last.size(), 12u);
  EXPECT_EQ(last.find(L' '), std::wstring::npos);
  const auto bytes = this->files.Read(name);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(*bytes, Bytes("found"));
  EXPECT_EQ(this->files.ShortName(this->At(L"none")), L"");
}

TYPED_TEST(FileSystemContract, TakesRelativePathsFromTheWorkingDirectory) {
  this->m_backEnd.MakeFolder(this->At(L"Folder"));
  this->Put(L"Folder\\a", "A");
  EXPECT_TRUE(this->files.ChangeDirectory(this->At(L"Folder")));
  EXPECT_EQ(this->files.WorkingDirectory(), this->At(L"Folder"));
  EXPECT_TRUE(this->files.Read(L"a"));
  EXPECT_TRUE(this->files.Read(L"..\\Folder\\a"));
  EXPECT_FALSE(this->files.ChangeDirectory(this->At(L"None")));
  EXPECT_FALSE(this->files.ChangeDirectory(this->At(L"Folder\\a")));
  EXPECT_EQ(this->files.WorkingDirectory(), this->At(L"Folder"));
}

TYPED_TEST(FileSystemContract, ListsLargeFoldersInLinearTime) {
  const auto timeToList = [this](int count) {
    const std::wstring folder = L"Folder" + std::to_wstring(count);
    this->m_backEnd.MakeFolder(this->At(folder));
    for (int i = 0; i < count; ++i) this->Put(folder + L"\\" + std::to_wstring(i) + L".txt", "");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(this->Names(this->At(folder)).size(), static_cast<std::size_t>(count));
    return std::chrono::steady_clock::now() - start;
  };
  const auto few = timeToList(TypeParam::ManyFiles / 10);
  const auto many = timeToList(TypeParam::ManyFiles);
  EXPECT_LT(many, few * 25 + std::chrono::milliseconds(100));
}

}  // namespace
}  // namespace orvane
