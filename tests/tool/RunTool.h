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
