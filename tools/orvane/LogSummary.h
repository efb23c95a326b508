#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "LogLine.h"

namespace orvane::tool {

/// What a log adds up to: operations, errors, and the times that timers measured.
class LogSummary {
 public:
  struct Times {
    std::int64_t count = 0, total = 0, least = 0, most = 0;  // milliseconds
  };

  void Add(const LogLine& line);

  std::string Text() const;
  std::string Json() const;

 private:
  std::int64_t m_lines = 0, m_operations = 0, m_errors = 0;
  std::map<std::wstring, Times> m_times;  // by what was measured
};

}  // namespace orvane::tool
