#include "Host.h"

namespace orvane::tool {

struct HostOutput::Streams {};
HostOutput::HostOutput() = default;
HostOutput::~HostOutput() = default;

std::vector<std::string> Arguments(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

std::filesystem::path HostPath(const std::string& path) {
  return path;
}

}  // namespace orvane::tool
