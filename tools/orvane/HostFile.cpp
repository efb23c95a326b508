#include "HostFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orvane::tool {

std::string ReadHostFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path))
    throw std::runtime_error(path + ": cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace orvane::tool
