#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/ScratchFolder.h"

namespace orvane::tool {

using Arguments = std::vector<std::string>;  // UTF-8

struct Answer {
  int status = -1;
  std::string output, errors;
};

/// The bytes of a file; empty without one.
std::string TextOf(const std::filesystem::path& path);
void Put(const std::filesystem::path& path, const std::string& text);

/// A path as the companion takes it, and back.
std::string Utf8(const std::filesystem::path& path);
std::filesystem::path Path(const std::string& utf8);

/// Files that stand for a program's standard streams.
struct Streams {
  explicit Streams(const std::filesystem::path& folder)
      : input(folder / "stdin"), output(folder / "stdout"), errors(folder / "stderr") {}
  std::filesystem::path input, output, errors;
};

/// The companion at work; ended with the object.
class RunningTool {
 public:
#ifdef _WIN32
  using Process = void*;
#else
  using Process = int;
#endif

  explicit RunningTool(const Arguments& arguments, const std::string& input = "");
  ~RunningTool();
  RunningTool(const RunningTool&) = delete;
  RunningTool& operator=(const RunningTool&) = delete;

  /// Waits until it has printed the text, half a minute at most; all that it has printed.
  std::string WaitFor(const std::string& text) const;

  /// Ends it with Ctrl+C, on Windows at once.
  Answer End();
  /// Waits for its end.
  Answer Finish();

 private:
  ScratchFolder m_folder;
  Streams m_streams;
  Process m_process;
  bool m_isRunning = true;
};

/// A test that runs the companion itself, with a folder to work in.
class ToolTest : public testing::Test {
 protected:
  Answer Run(const Arguments& arguments, const std::string& input = "") const;

  /// One line on standard error that holds `part`, nothing else, and exit code 2.
  void ExpectRefusal(const Arguments& arguments, const std::string& part) const;

  std::string Scratch(const std::string& name) const { return Utf8(m_scratch.Path() / Path(name)); }

  ScratchFolder m_scratch;
};

}  // namespace orvane::tool
