#include "commands/SelectionFile.h"

#include <gtest/gtest.h>

#include <string_view>

#include "memory/Desktop.h"

namespace orvane {
namespace {

using Trouble = memory::FileSystem::Trouble;

class SelectionFile : public testing::Test {
 protected:
  /// 0, or the failure's number, negative when the file could be opened.
  std::int32_t Write(std::string_view text, const std::wstring& path = File) {
    const auto failure = WriteSelectionFile(desktop->files, path, std::as_bytes(std::span(text)));
    if (!failure) return 0;
    return failure->opened ? -failure->error.Number() : failure->error.Number();
  }

  /// Begins with a new desktop, where the file is there.
  void Restart() {
    desktop = std::make_unique<memory::Desktop>();
    desktop->files.AddFile(File, "old");
  }

  static inline const std::wstring File = L"C:\\Lists\\list.txt";
  std::unique_ptr<memory::Desktop> desktop = std::make_unique<memory::Desktop>();
};

TEST_F(SelectionFile, IsWrittenAndReplacedAndNoFileBesideItTouched) {
  desktop->files.AddFile(L"C:\\Lists\\list.txt.new1", "somebody's own");
  for (const char* text : {"first, and the longer one", "second", ""}) {
    EXPECT_EQ(Write(text), 0);
    EXPECT_EQ(desktop->files.Content(File), text);
  }
  EXPECT_EQ(desktop->files.Content(L"C:\\Lists\\list.txt.new1"), "somebody's own");
  EXPECT_FALSE(desktop->files.Exists(L"C:\\Lists\\list.txt.new2"));
}

TEST_F(SelectionFile, ThatCannotBeReplacedIsWrittenAsItStands) {
  Restart();
  desktop->files.Add(Trouble::Fixed, L"C:\\Lists");
  EXPECT_EQ(Write("new"), 0);
  EXPECT_EQ(desktop->files.Content(File), "new");
  EXPECT_EQ(Write("text", L"C:\\Lists\\other.txt"), 75);
  desktop->files.Add(Trouble::Full, File);
  EXPECT_EQ(Write("newer"), -61);
}

TEST_F(SelectionFile, FailureKeepsTheOldFileAndNamesItsReason) {
  struct {
    std::optional<Trouble> trouble;  // or else the file is open in another program
    std::int32_t number;
  } const rows[] = {{Trouble::Full, -61}, {Trouble::ReadOnly, 75}, {{}, 70}};
  for (const auto& row : rows) {
    Restart();
    std::unique_ptr<OutputFile> holder;
    if (row.trouble)
      desktop->files.Add(*row.trouble, L"C:\\Lists");
    else
      holder = desktop->files.OpenToWrite(File, FileSystem::Open::Append);
    EXPECT_EQ(Write("new"), row.number);
    EXPECT_EQ(desktop->files.Content(File), "old") << row.number;
    EXPECT_FALSE(desktop->files.Exists(File + L".new1")) << row.number;
  }
  desktop->files.AddFolder(L"C:\\Full");
  desktop->files.Add(Trouble::Full, L"C:\\Full");
  EXPECT_EQ(Write("text", L"C:\\Full\\list.txt"), -61);
  EXPECT_FALSE(desktop->files.Exists(L"C:\\Full\\list.txt")) << "half of a new file";
  EXPECT_EQ(Write("text", L"C:\\No\\Such\\list.txt"), 76);
}

TEST_F(SelectionFile, EveryFailingCallLeavesTheOldOrTheNewText) {
  for (std::size_t n = 1;; ++n) {
    Restart();
    desktop->faults.FailCall(n);
    const std::int32_t error = Write("new");
    if (desktop->faults.Calls() < n) break;
    const auto content = desktop->files.Content(File);
    EXPECT_TRUE(content == "new" || (error != 0 && content == "old")) << "call " << n;
  }
}

}  // namespace
}  // namespace orvane
