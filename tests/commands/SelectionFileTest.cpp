#include "commands/SelectionFile.h"

#include <gtest/gtest.h>

#include <string_view>

#include "platform/memory/Desktop.h"

namespace orvane {
namespace {

using Trouble = memory::FileSystem::Trouble;

class SelectionFile : public testing::Test {
 protected:
  std::optional<Error> Write(const std::wstring& path, std::string_view text) {
    return WriteSelectionFile(desktop.files, path, std::as_bytes(std::span(text)));
  }

  std::size_t FileCount(const std::wstring& folder) {
    std::size_t count = 0;
    FoundFile found;
    for (const auto listing = desktop.files.List(folder, 0); listing && listing->Next(found);)
      ++count;
    return count;
  }

  memory::Desktop desktop;
};

TEST_F(SelectionFile, IsWrittenAndReplaced) {
  desktop.files.AddFolder(L"C:\\Lists");
  EXPECT_FALSE(Write(L"C:\\Lists\\list.txt", "first, and the longer one"));
  EXPECT_FALSE(Write(L"C:\\Lists\\list.txt", "second"));
  EXPECT_EQ(desktop.files.Content(L"C:\\Lists\\list.txt"), "second");
  EXPECT_FALSE(Write(L"C:\\Lists\\empty.txt", ""));
  EXPECT_EQ(desktop.files.Content(L"C:\\Lists\\empty.txt"), "");
  EXPECT_EQ(FileCount(L"C:\\Lists"), 2u);
}

TEST_F(SelectionFile, TouchesNoFileBesideIt) {
  desktop.files.AddFile(L"C:\\Lists\\list.txt", "old");
  desktop.files.AddFile(L"C:\\Lists\\list.txt.new1", "somebody's own");
  EXPECT_FALSE(Write(L"C:\\Lists\\list.txt", "new"));
  EXPECT_EQ(desktop.files.Content(L"C:\\Lists\\list.txt"), "new");
  EXPECT_EQ(desktop.files.Content(L"C:\\Lists\\list.txt.new1"), "somebody's own");
}

TEST_F(SelectionFile, FailureKeepsTheOldFileAndNamesItsReason) {
  const std::wstring file = L"C:\\Lists\\list.txt";
  const auto open = [](memory::Desktop& desktop, const std::wstring& path) {
    return desktop.files.OpenToWrite(path, FileSystem::Open::Append);
  };
  struct {
    const char* name;
    void (*trouble)(memory::Desktop&);
    bool heldOpen;
    std::int32_t number;
  } const rows[] = {
      {"full disk", [](memory::Desktop& d) { d.files.Add(Trouble::Full, L"C:\\Lists"); }, false,
       61},
      {"read-only disk", [](memory::Desktop& d) { d.files.Add(Trouble::ReadOnly, L"C:\\Lists"); },
       false, 75},
      {"open in another program", [](memory::Desktop&) {}, true, 70},
  };
  for (const auto& row : rows) {
    memory::Desktop own;
    own.files.AddFile(file, "old");
    row.trouble(own);
    const auto holder = row.heldOpen ? open(own, file) : nullptr;
    const std::string_view text = "new";
    const auto error = WriteSelectionFile(own.files, file, std::as_bytes(std::span(text)));
    ASSERT_TRUE(error) << row.name;
    EXPECT_EQ(error->Number(), row.number) << row.name;
    EXPECT_EQ(own.files.Content(file), "old") << row.name;
    EXPECT_FALSE(own.files.Exists(file + L".new1")) << row.name;
  }
}

TEST_F(SelectionFile, LeavesNoHalfOfANewFile) {
  desktop.files.AddFolder(L"C:\\Full");
  desktop.files.Add(Trouble::Full, L"C:\\Full");
  EXPECT_EQ(Write(L"C:\\Full\\list.txt", "text")->Description(), L"Disk full");
  EXPECT_FALSE(desktop.files.Exists(L"C:\\Full\\list.txt"));
  EXPECT_EQ(Write(L"C:\\No\\Such\\list.txt", "text")->Description(), L"Path not found");
}

TEST_F(SelectionFile, EveryFailingCallLeavesTheOldOrTheNewText) {
  const std::wstring file = L"C:\\Lists\\list.txt";
  for (std::size_t n = 1;; ++n) {
    memory::Desktop own;
    own.files.AddFile(file, "old");
    own.faults.FailCall(n);
    const std::string_view text = "new";
    const auto error = WriteSelectionFile(own.files, file, std::as_bytes(std::span(text)));
    if (own.faults.Calls() < n) break;
    const auto content = own.files.Content(file);
    EXPECT_TRUE(content == "new" || (error && content == "old")) << "call " << n;
  }
}

}  // namespace
}  // namespace orvane
