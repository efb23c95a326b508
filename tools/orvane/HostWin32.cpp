#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <iostream>
#include <stdexcept>

#include "ConsoleStream.h"
#include "Host.h"
#include "support/Utf8.h"
#include "win32/NativePath.h"
#include "win32/SystemInfo.h"

namespace orvane::tool {

struct HostOutput::Streams {
  ConsoleStream output{std::cout, STD_OUTPUT_HANDLE};
  ConsoleStream errors{std::cerr, STD_ERROR_HANDLE};
};

HostOutput::HostOutput() {
  for (std::FILE* file : {stdin, stdout, stderr}) _setmode(_fileno(file), _O_BINARY);
  m_streams = std::make_unique<Streams>();
}

HostOutput::~HostOutput() = default;

std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&LocalFree)> texts(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  std::vector<std::string> arguments;
  for (int i = 1; texts && i < count; ++i) arguments.push_back(ToUtf8(texts.get()[i]));
  return arguments;
}

bool IsTerminal(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(
             GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE),
             &mode) != 0;
}

std::filesystem::path HostPath(const std::string& path) {
  const auto wide = FromUtf8(path);
  if (!wide) throw std::runtime_error(path + ": is not UTF-8");
  return win32::NativePath(*wide);
}

std::unique_ptr<SystemInfo> HostSystem() {
  return std::make_unique<win32::SystemInfo>(nullptr);
}

}  // namespace orvane::tool
