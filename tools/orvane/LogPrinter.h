#pragma once

#include <optional>
#include <string>

#include "LogLine.h"

namespace orvane::tool {

/// Prints lines as text or as one JSON object each; only those of one operation when it is named.
/// Control characters that would play with a terminal are shown as "\x1B".
class LogPrinter {
 public:
  LogPrinter(bool json, const std::string& operation);

  void Print(const LogLine& line, std::optional<int> sender = std::nullopt);

 private:
  bool IsWanted(const LogLine& line);

  bool m_json;
  std::wstring m_operation;             // in small letters; empty for all
  std::optional<std::size_t> m_within;  // the level of the operation that is being printed
};

/// The text without control characters.
std::string Printable(std::wstring_view text);

}  // namespace orvane::tool
