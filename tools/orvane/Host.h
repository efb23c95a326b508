#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/SystemInfo.h"

// What each system that the companion runs on has its own way of.

namespace orvane::tool {

/// The program's arguments without its name: UTF-8 on Windows, elsewhere the bytes that came.
std::vector<std::string> ProgramArguments(int argc, char** argv);

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

enum class Stream { Output, Errors };

/// True when somebody may be looking at what the stream gets.
bool IsTerminal(Stream stream);

/// The name of a file for the library's calls, of any length and with any character.
/// std::runtime_error where the system cannot have a file of that name.
std::filesystem::path HostPath(const std::string& path);

/// This machine: on Windows the real one; elsewhere one whose program folder is called
/// "(program folder)".
std::unique_ptr<SystemInfo> HostSystem();

}  // namespace orvane::tool
