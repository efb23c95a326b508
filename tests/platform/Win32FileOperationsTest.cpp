#ifdef _WIN32
#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include "platform/win32/FileOperations.h"

namespace orvane {
namespace {

FileNames Names(std::initializer_list<std::wstring_view> list) {
  FileNames names;
  for (std::wstring_view name : list) names.Add(name);
  return names;
}

class Win32FileOperations : public testing::Test {
 protected:
  Win32FileOperations() {
    wchar_t path[MAX_PATH];
    GetTempPathW(MAX_PATH, path);
    root = std::wstring(path) + L"Orvane operations";
    for (const wchar_t* folder : {L"", L"\\from", L"\\to"}) {
      CreateDirectoryW((root + folder).c_str(), nullptr);
    }
    for (const wchar_t* file : {L"\\from\\a b.txt", L"\\from\\\u05d0.txt", L"\\from\\c.txt"}) {
      CloseHandle(
          CreateFileW((root + file).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
  }
  ~Win32FileOperations() override {
    const std::wstring list = root + std::wstring(1, L'\0');
    SHFILEOPSTRUCTW removal{};
    removal.wFunc = FO_DELETE;
    removal.pFrom = list.c_str();
    removal.fFlags = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    SHFileOperationW(&removal);
  }
  bool Exists(const std::wstring& name) {
    return GetFileAttributesW((root + name).c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  std::wstring root;
  win32::FileOperations operations;
  static constexpr std::uint16_t Quietly = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
};

TEST_F(Win32FileOperations, CopyAndMoveWholeLists) {
  const std::wstring ab = root + L"\\from\\a b.txt";
  const std::wstring alef = root + L"\\from\\\u05d0.txt";
  EXPECT_EQ(operations.Run({}, FileOperations::Function::Copy, Names({ab, alef}), root + L"\\to",
                           FileOperations::AllowUndo | Quietly),
            0);
  EXPECT_TRUE(Exists(L"\\to\\a b.txt"));
  EXPECT_TRUE(Exists(L"\\to\\\u05d0.txt"));
  EXPECT_TRUE(Exists(L"\\from\\a b.txt"));
  EXPECT_FALSE(Exists(L"\\to\\c.txt"));

  EXPECT_EQ(operations.Run({}, FileOperations::Function::Move, Names({root + L"\\from\\c.txt"}),
                           root + L"\\to", Quietly),
            0);
  EXPECT_TRUE(Exists(L"\\to\\c.txt"));
  EXPECT_FALSE(Exists(L"\\from\\c.txt"));
}

TEST_F(Win32FileOperations, RefuseWildcardsAndReportFailures) {
  EXPECT_EQ(operations.Run({}, FileOperations::Function::Move, Names({root + L"\\from\\*"}),
                           root + L"\\to", Quietly),
            FileOperations::InvalidName);
  EXPECT_TRUE(Exists(L"\\from\\c.txt"));
  EXPECT_EQ(operations.Run({}, FileOperations::Function::Move, {}, root + L"\\to", Quietly), 0);
  EXPECT_NE(operations.Run({}, FileOperations::Function::Copy, Names({root + L"\\from\\missing"}),
                           root + L"\\to", Quietly),
            0);
}

}  // namespace
}  // namespace orvane
#endif
