#include "RunTool.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <thread>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

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

RunningTool::Process Start(const Arguments& arguments, const Streams& streams) {
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
  if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &process))
    CloseHandle(process.hThread);
  for (const HANDLE handle : {startup.hStdInput, startup.hStdOutput, startup.hStdError})
    CloseHandle(handle);
  return process.hProcess;
}

int Wait(RunningTool::Process process) {
  DWORD status = 255;
  WaitForSingleObject(process, INFINITE);
  GetExitCodeProcess(process, &status);
  CloseHandle(process);
  return static_cast<int>(status);
}

// Ctrl+C would reach this program too.
void Interrupt(RunningTool::Process process) {
  TerminateProcess(process, 0);
}

#else

void Redirect(int stream, const fs::path& path, int how) {
  dup2(open(path.c_str(), how, 0600), stream);
}

RunningTool::Process Start(const Arguments& arguments, const Streams& streams) {
  const pid_t child = fork();
  if (child != 0) return child;
  Redirect(STDIN_FILENO, streams.input, O_RDONLY);
  Redirect(STDOUT_FILENO, streams.output, O_WRONLY | O_CREAT | O_TRUNC);
  Redirect(STDERR_FILENO, streams.errors, O_WRONLY | O_CREAT | O_TRUNC);
  std::vector<std::string> texts = arguments;
  std::vector<char*> pointers = {const_cast<char*>(ORVANE_TOOL)};
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  execv(ORVANE_TOOL, pointers.data());
  _exit(127);
}

int Wait(RunningTool::Process process) {
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 255;
}

void Interrupt(RunningTool::Process process) {
  kill(process, SIGINT);
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

RunningTool::RunningTool(const Arguments& arguments, const std::string& input)
    : m_streams(m_folder.Path()) {
  Put(m_streams.input, input);
  m_process = Start(arguments, m_streams);
}

RunningTool::~RunningTool() {
  if (m_isRunning) End();
}

std::string RunningTool::WaitFor(const std::string& text) const {
  std::string printed;
  for (int i = 0; i < 300 && printed.find(text) == printed.npos; ++i) {
    if (i > 0) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    printed = TextOf(m_streams.output) + TextOf(m_streams.errors);
  }
  EXPECT_NE(printed.find(text), printed.npos) << text << " did not come, but:\n" << printed;
  return printed;
}

Answer RunningTool::End() {
  Interrupt(m_process);
  return Finish();
}

Answer RunningTool::Finish() {
  m_isRunning = false;
  const int status = Wait(m_process);
  return {status, TextOf(m_streams.output), TextOf(m_streams.errors)};
}

Answer ToolTest::Run(const Arguments& arguments, const std::string& input) const {
  return RunningTool(arguments, input).Finish();
}

void ToolTest::ExpectRefusal(const Arguments& arguments, const std::string& part) const {
  const Answer answer = Run(arguments);
  EXPECT_EQ(answer.status, 2) << part;
  EXPECT_EQ(answer.output, "") << part;
  EXPECT_NE(answer.errors.find(part), std::string::npos) << part << "\n" << answer.errors;
  EXPECT_EQ(std::ranges::count(answer.errors, '\n'), 1) << answer.errors;
}

}  // namespace orvane::tool
