#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "LogLine.h"
#include "support/CodePage.h"

namespace orvane::tool {

/// What one sender of the network output says: messages of a two-byte length and so many bytes.
class LogMessages {
 public:
  using Sink = std::function<void(const LogLine&)>;

  LogMessages(const CodePage& codePage, Sink sink);

  void Feed(std::string_view bytes);
  /// The bytes of a message that has not come whole.
  std::size_t Pending() const { return m_pending.size(); }

 private:
  void Take(std::wstring_view message);

  const CodePage* m_codePage;
  Sink m_sink;
  LogLines m_lines;
  std::string m_pending;
};

}  // namespace orvane::tool
