// The end-to-end host: without one of the modes it runs its tests. Other processes of it do what
// the tests look at, and write down what they saw as UTF-8.

#include <gtest/gtest.h>

#include <windows.h>

#include <shellapi.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "common/Watchdog.h"
#include "host/Library.h"
#include "host/Modes.h"
#include "support/Utf8.h"

namespace orvane::host {
namespace {

std::vector<std::wstring> WideArguments() {
  int count = 0;
  wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::wstring> result(arguments + 1, arguments + count);
  LocalFree(arguments);
  return result;
}

/// The file is there only when it is whole, since somebody waits for it.
int WriteWhole(const std::wstring& path, const std::wstring& text) {
  const std::wstring unfinished = path + L".part";
  std::ofstream(std::filesystem::path(unfinished), std::ios::binary) << ToUtf8(text);
  SetCurrentDirectoryW(L"C:\\");  // lets go of the folder, which its maker wants to remove
  return MoveFileExW(unfinished.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) ? 0 : 1;
}

/// Writes the current folder and then each argument, a line each.
int RecordStart(const std::wstring& path, const std::vector<std::wstring>& arguments) {
  std::wstring text = std::filesystem::current_path().wstring() + L'\n';
  for (const std::wstring& argument : arguments) text += argument + L'\n';
  return WriteWhole(path, WithSurrogatesSpelt(text));
}

/// Whether this is a copy under another program's name, which nothing should start.
bool IsPlanted() {
  return std::filesystem::path(HostPath()).stem() != L"orvane_host";
}

/// Writes the clipboard's text.
int RecordClipboard(const std::wstring& path) {
  std::wstring text = L"(no text)";
  const bool opened = OpenClipboard(nullptr);
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    text = static_cast<const wchar_t*>(GlobalLock(data));
    GlobalUnlock(data);
  }
  if (opened) CloseClipboard();
  return WriteWhole(path, text);
}

/// Shows an edit control that has the keyboard, until it is ended.
int ShowEdit() {
  const HWND frame = CreateWindowW(L"#32770", L"Orvane Edit", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 30,
                                   30, 400, 200, nullptr, nullptr, nullptr, nullptr);
  const HWND edit =
      CreateWindowW(L"Edit", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_MULTILINE, 0, 0, 380,
                    150, frame, nullptr, nullptr, nullptr);
  SetForegroundWindow(frame);
  SetFocus(edit);
  return RunMessages();
}

/// Prints where the middle of a control of the window in front is on the screen.
int PrintPlace(int control) {
  RECT place{};
  if (!GetWindowRect(GetDlgItem(GetForegroundWindow(), control), &place)) return 1;
  std::printf("%ld %ld\n", (place.left + place.right) / 2, (place.top + place.bottom) / 2);
  return 0;
}

}  // namespace

std::wstring WithSurrogatesSpelt(const std::wstring& text) {
  std::wstring spelt;
  for (const wchar_t c : text) {
    wchar_t number[8] = {c};
    if (c >= 0xD800 && c < 0xE000)
      swprintf(number, std::size(number), L"<%04X>", static_cast<unsigned>(c));
    spelt += number;
  }
  return spelt;
}

}  // namespace orvane::host

int main(int argc, char** argv) {
  using namespace orvane;
  using namespace orvane::host;
  if (IsPlanted()) return WriteWhole(HostPath() + L".ran", L"");
  const std::vector<std::wstring> arguments = WideArguments();
  const std::wstring mode = arguments.empty() ? L"" : arguments[0];
  if (mode == L"--menu" && arguments.size() > 1) {
    return ShowMenu(arguments[1], {arguments.begin() + 2, arguments.end()});
  }
  if (mode == L"--bench") return RunBench();
  if (mode == L"--write" && arguments.size() > 1) {
    return RecordStart(arguments[1], {arguments.begin() + 2, arguments.end()});
  }
  if (mode == L"--clipboard" && arguments.size() > 1) {
    return RecordClipboard(arguments[1]);
  }
  if (mode == L"--save-list" && arguments.size() > 1) return SaveListOften(arguments[1]);
  if (mode == L"--edit") return ShowEdit();
  if (mode == L"--place" && arguments.size() > 1) return PrintPlace(std::stoi(arguments[1]));
  if (mode == L"/k") return RecordStart(_wgetenv(PromptRecord), {});
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new test::Watchdog);
  return RUN_ALL_TESTS();
}
