// The end-to-end host: without a mode it runs its tests.
//   --menu FOLDER [NAME]...   shows a right-click in a real window
//   --bench                   times whole right-clicks
//   --write FILE [TEXT]...    records its folder and arguments
//   --clipboard FILE          records the clipboard's text
//   --edit                    shows an edit control
//   /k                        plays the command interpreter

#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include "common/Watchdog.h"
#include "host/Com.h"
#include "host/Modes.h"

namespace {

std::vector<std::wstring> WideArguments() {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::wstring> result(arguments + 1, arguments + count);
  LocalFree(arguments);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::wstring> arguments = WideArguments();
  const std::wstring mode = arguments.empty() ? L"" : arguments[0];
  if (mode == L"--menu" && arguments.size() > 1) {
    return orvane::host::ShowMenu(arguments[1], {arguments.begin() + 2, arguments.end()});
  }
  if (mode == L"--bench") return orvane::host::RunBench();
  if (mode == L"--write" && arguments.size() > 1) {
    return orvane::host::RecordStart(arguments[1], {arguments.begin() + 2, arguments.end()});
  }
  if (mode == L"--clipboard" && arguments.size() > 1) {
    return orvane::host::RecordClipboard(arguments[1]);
  }
  if (mode == L"--edit") return orvane::host::ShowEdit();
  if (mode == L"/k") return orvane::host::RecordPrompt();
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new orvane::test::Watchdog);
  return RUN_ALL_TESTS();
}
