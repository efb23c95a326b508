#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// What each system that the companion runs on has its own way of.

namespace orvane::tool {

/// The program's arguments without its name: UTF-8 on Windows, elsewhere the bytes that came.
std::vector<std::string> Arguments(int argc, char** argv);

/// While it lives, std::cout and std::cerr write their bytes unchanged into files and pipes, and as
/// UTF-8 to a console.
class HostOutput {
 public:
  HostOutput();
  ~HostOutput();
  HostOutput(const HostOutput&) = delete;
  HostOutput& operator=(const HostOutput&) = delete;

 private:
  struct Streams;
  std::unique_ptr<Streams> m_streams;
};

/// The name of a file for the library's calls, of any length and with any character.
/// std::runtime_error where the system cannot have a file of that name.
std::filesystem::path HostPath(const std::string& path);

}  // namespace orvane::tool
