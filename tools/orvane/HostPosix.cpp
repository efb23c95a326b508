#include "Host.h"

#include <unistd.h>

#include "memory/SystemInfo.h"

namespace orvane::tool {

struct HostOutput::Streams {};
HostOutput::HostOutput() = default;
HostOutput::~HostOutput() = default;

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

bool IsTerminal(Stream stream) {
  return isatty(stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO) != 0;
}

std::filesystem::path HostPath(const std::string& path) {
  return path;
}

std::unique_ptr<SystemInfo> HostSystem() {
  auto system = std::make_unique<memory::SystemInfo>();
  system->programFolder = L"(program folder)";
  return system;
}

}  // namespace orvane::tool
