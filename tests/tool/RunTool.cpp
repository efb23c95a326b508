#include "RunTool.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/wait.h>
#endif

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// Files that stand for the program's standard streams.
struct Streams {
  explicit Streams(const fs::path& folder)
      : input(folder / "stdin"), output(folder / "stdout"), errors(folder / "stderr") {}
  fs::path input, output, errors;
};

#ifdef _WIN32

/// As the C library takes a command line apart again.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L"\"";
}

HANDLE OpenStream(const fs::path& path, DWORD access, DWORD how) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, how, 0,
                     nullptr);
}

int Execute(const Arguments& arguments, const Streams& streams) {
  const std::wstring program = fs::absolute(ORVANE_TOOL).native();
  std::wstring line = Quoted(program);
  for (const std::string& argument : arguments) line += L" " + Quoted(Path(argument).native());
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = OpenStream(streams.input, GENERIC_READ, OPEN_EXISTING);
  startup.hStdOutput = OpenStream(streams.output, GENERIC_WRITE, CREATE_ALWAYS);
  startup.hStdError = OpenStream(streams.errors, GENERIC_WRITE, CREATE_ALWAYS);
  PROCESS_INFORMATION process{};
  DWORD status = 255;
  if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &process)) {
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  }
  for (const HANDLE handle : {startup.hStdInput, startup.hStdOutput, startup.hStdError})
    CloseHandle(handle);
  return static_cast<int>(status);
}

#else

std::string Quoted(const std::string& argument) {
  std::string quoted = "'";
  for (const char c : argument) quoted += c == '\'' ? "'\\''" : std::string(1, c);
  return quoted + "'";
}

int Execute(const Arguments& arguments, const Streams& streams) {
  std::string line = Quoted(ORVANE_TOOL);
  for (const std::string& argument : arguments) line += " " + Quoted(argument);
  line +=
      " <" + Quoted(streams.input) + " >" + Quoted(streams.output) + " 2>" + Quoted(streams.errors);
  return WEXITSTATUS(std::system(line.c_str()));
}

#endif

}  // namespace

std::string TextOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const fs::path& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path Path(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

Answer ToolTest::Run(const Arguments& arguments, const std::string& input) const {
  const ScratchFolder folder;
  const Streams streams(folder.Path());
  Put(streams.input, input);
  Answer answer;
  answer.status = Execute(arguments, streams);
  answer.output = TextOf(streams.output);
  answer.errors = TextOf(streams.errors);
  return answer;
}

void ToolTest::ExpectRefusal(const Arguments& arguments, const std::string& part) const {
  const Answer answer = Run(arguments);
  EXPECT_EQ(answer.status, 2) << part;
  EXPECT_EQ(answer.output, "") << part;
  EXPECT_NE(answer.errors.find(part), std::string::npos) << part << "\n" << answer.errors;
  EXPECT_EQ(std::ranges::count(answer.errors, '\n'), 1) << answer.errors;
}

}  // namespace orvane::tool
