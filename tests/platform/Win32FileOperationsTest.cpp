#ifdef _WIN32
#include "platform/AnyDesktop.h"
// After windows.h.
#include <shellapi.h>

namespace orvane {
namespace {

class Win32FileOperations : public AnyDisk {
 protected:
  std::int32_t Run(FileOperations::Function function, std::initializer_list<const wchar_t*> list) {
    FileNames names;
    for (const wchar_t* name : list) names.Add(At(name));
    constexpr std::uint16_t Quietly = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    return m_platform.operations.Run({}, function, names, At(L"to"), Quietly);
  }
};

INSTANTIATE_TEST_SUITE_P(, Win32FileOperations, testing::Values("win32"), NameOfDesktop);

TEST_P(Win32FileOperations, CopyListsButNoWildcardsAndReportFailures) {
  MakeFolder(L"to");
  for (const wchar_t* name : {L"a b.txt", L"\u05d0.txt", L"c.txt"}) Put(name);
  EXPECT_EQ(Run(FileOperations::Function::Copy, {L"a b.txt", L"\u05d0.txt"}), 0);
  EXPECT_TRUE(files.Attributes(At(L"to\\a b.txt")));
  EXPECT_TRUE(files.Attributes(At(L"to\\\u05d0.txt")));
  EXPECT_EQ(Run(FileOperations::Function::Move, {L"*"}), FileOperations::InvalidName);
  EXPECT_TRUE(files.Attributes(At(L"c.txt")));
  EXPECT_EQ(Run(FileOperations::Function::Move, {}), 0);
  EXPECT_NE(Run(FileOperations::Function::Copy, {L"missing"}), 0);
}

}  // namespace
}  // namespace orvane
#endif
