#include <gtest/gtest.h>

#include <fstream>

#include "platform/ScratchFolder.h"
#include "platform/memory/Desktop.h"

namespace orvane {
namespace {

std::vector<std::byte> Bytes(std::string_view text) {
  const auto* first = reinterpret_cast<const std::byte*>(text.data());
  return {first, first + text.size()};
}

class MemoryFileSystem : public testing::Test {
 protected:
  bool Put(const std::wstring& path, std::string_view content) {
    const auto file = m_desktop.files.OpenToWrite(path, FileSystem::Open::CreateAnew);
    return file && file->Write(Bytes(content));
  }

  std::wstring Names(const std::wstring& folder, std::uint32_t patience = 250) {
    const auto listing = m_desktop.files.List(folder, patience);
    if (!listing) return L"(none)";
    std::wstring names;
    for (FoundFile found; listing->Next(found);) names += found.name + L"|";
    return names;
  }

  /// "WriteFile D:\a text" and so on, a line an effect.
  std::wstring EffectLines() {
    std::wstring lines;
    for (const memory::Effect& effect : m_desktop.effects.All()) {
      lines += std::wstring(effect.call.begin(), effect.call.end());
      for (const auto& [name, value] : effect.fields) lines += L" " + std::get<0>(value);
      lines += L"\n";
    }
    return lines;
  }

  memory::Desktop m_desktop;
  memory::FileSystem& files = m_desktop.files;
};

TEST_F(MemoryFileSystem, RecordsWhatIsWrittenAndRemoved) {
  files.AddFile(L"D:\\old", "no effect");
  EXPECT_TRUE(Put(L"D:\\a", "\x80 euro"));
  EXPECT_TRUE(Put(L"D:\\a.tmp", "new"));
  EXPECT_TRUE(files.Replace(L"D:\\a.tmp", L"D:\\a"));
  EXPECT_TRUE(files.Replace(L"D:\\old", L"D:\\older"));
  EXPECT_TRUE(files.Remove(L"d:\\older"));
  files.OpenToWrite(L"D:\\a", FileSystem::Open::Append);
  EXPECT_EQ(EffectLines(),
            L"WriteFile D:\\a \x20AC euro\n"
            L"WriteFile D:\\a new\n"
            L"MoveFile D:\\old D:\\older\n"
            L"DeleteFile d:\\older\n");
  EXPECT_EQ(files.Content(L"D:\\a"), "new");
}

TEST_F(MemoryFileSystem, HasTroublesWhereATestPutsThem) {
  using Trouble = memory::FileSystem::Trouble;
  files.AddFile(L"D:\\Closed\\file", "x");
  files.AddFile(L"D:\\Full\\file", "old");
  files.AddFile(L"D:\\Kept\\file", "old");
  files.Add(Trouble::Unreadable, L"D:\\Closed");
  files.Add(Trouble::Full, L"D:\\Full");
  files.Add(Trouble::ReadOnly, L"D:\\Kept");
  EXPECT_EQ(Names(L"D:\\closed"), L"(none)");
  EXPECT_EQ(files.LastError(), 5u);
  EXPECT_FALSE(files.Read(L"D:\\Closed\\file"));
  EXPECT_TRUE(files.Attributes(L"D:\\Closed\\file"));
  EXPECT_FALSE(Put(L"D:\\Full\\file.tmp", "new"));
  EXPECT_EQ(files.LastError(), 112u);
  EXPECT_FALSE(Put(L"D:\\Kept\\file.tmp", "new"));
  EXPECT_FALSE(Put(L"D:\\Kept\\file", "new"));
  EXPECT_FALSE(files.Remove(L"D:\\Kept\\file"));
  EXPECT_EQ(files.Content(L"D:\\Kept\\file"), "old");
  EXPECT_TRUE(Put(L"D:\\elsewhere", "new"));
}

TEST_F(MemoryFileSystem, GivesASilentShareUpInTime) {
  files.AddFile(L"\\\\far\\share\\a\\file", "x");
  files.Stall(L"\\\\far\\share", 30'000);
  const std::uint32_t start = m_desktop.clock.Ticks();
  EXPECT_EQ(Names(L"\\\\far\\SHARE\\a", 250), L"(none)");
  EXPECT_EQ(m_desktop.clock.Ticks() - start, 250u);
  files.Stall(L"\\\\far\\share", 200);
  EXPECT_EQ(Names(L"\\\\far\\share\\a", 250), L"file|");
  EXPECT_EQ(m_desktop.clock.Ticks() - start, 450u);
}

TEST_F(MemoryFileSystem, ListsInTheOrderOfArrival) {
  for (const wchar_t* name : {L"b", L"A", L"c"}) files.AddFile(std::wstring(L"D:\\") + name);
  EXPECT_EQ(Names(L"D:\\"), L"b|A|c|");
}

TEST_F(MemoryFileSystem, NumbersShortNames) {
  const struct {
    const wchar_t* name;
    const wchar_t* shortName;
  } rows[] = {
      {L"plain.txt", L"plain.txt"},
      {L"Two words.txt", L"TWOWOR~1.TXT"},
      {L"Two wordy.txt", L"TWOWOR~2.TXT"},
      {L"page.html", L"PAGE~1.HTM"},
      {L"a.b.c", L"AB~1.C"},
      {L".rc", L"~1.RC"},
      {L"\u05d0.txt", L"_~1.TXT"},
      {L"no extension", L"NOEXTE~1"},
  };
  for (const auto& row : rows) {
    files.AddFile(std::wstring(L"D:\\") + row.name);
    EXPECT_EQ(files.ShortName(std::wstring(L"D:\\") + row.name),
              std::wstring(L"D:\\") + row.shortName);
    EXPECT_TRUE(files.Exists(std::wstring(L"D:\\") + row.shortName));
  }
}

TEST_F(MemoryFileSystem, FailsTheCallThatATestNames) {
  files.AddFile(L"D:\\a", "x");
  m_desktop.faults.FailCall(2);
  EXPECT_TRUE(files.Read(L"D:\\a"));
  EXPECT_FALSE(files.Read(L"D:\\a"));
  EXPECT_TRUE(files.Read(L"D:\\a"));
  EXPECT_EQ(m_desktop.faults.Calls(), 3u);
}

#ifndef _WIN32
TEST_F(MemoryFileSystem, NeverWritesToAMountedDirectory) {
  const ScratchFolder scratch;
  std::ofstream(scratch.Path() / "b.txt") << "old";
  std::ofstream(scratch.Path() / "A.txt") << "first";
  files.Mount(L"C:", scratch.Path());
  EXPECT_EQ(Names(L"C:\\"), L"A.txt|b.txt|");
  EXPECT_EQ(files.Content(L"C:\\a.TXT"), "first");
  EXPECT_TRUE(Put(L"C:\\B.txt", "new"));
  EXPECT_TRUE(Put(L"C:\\c.txt", "made"));
  EXPECT_TRUE(files.Remove(L"C:\\A.txt"));
  EXPECT_EQ(Names(L"C:\\"), L"b.txt|c.txt|");
  EXPECT_EQ(files.Content(L"C:\\b.txt"), "new");
  std::ifstream untouched(scratch.Path() / "b.txt");
  std::string content;
  untouched >> content;
  EXPECT_EQ(content, "old");
  EXPECT_TRUE(std::filesystem::exists(scratch.Path() / "A.txt"));
  EXPECT_FALSE(std::filesystem::exists(scratch.Path() / "c.txt"));
}

TEST_F(MemoryFileSystem, FollowsLinksOfTheHostOneLevelAtATime) {
  const ScratchFolder scratch;
  std::filesystem::create_directory_symlink(scratch.Path(), scratch.Path() / "loop");
  std::filesystem::create_symlink("nowhere", scratch.Path() / "broken");
  std::ofstream(scratch.Path() / "\xE4 no UTF-8");
  files.Mount(L"C:", scratch.Path());
  EXPECT_EQ(Names(L"C:\\"), L"loop|");
  EXPECT_EQ(Names(L"C:\\loop\\loop\\loop"), L"loop|");
  EXPECT_EQ(files.Attributes(L"C:\\loop"), FileAttribute::Directory | FileAttribute::ReparsePoint);
}
#endif

}  // namespace
}  // namespace orvane
