#pragma once

#include <string>

namespace orvane {

/// The desktop's clipboard. Another program may hold it open: both methods try again for up to half
/// a second, with the calling thread waiting, and answer false when they cannot have it.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Takes everything off the clipboard.
  virtual bool Clear() = 0;

  /// Replaces what is there by the text, which ends at its first zero character. An empty text is
  /// put there too.
  virtual bool SetText(const std::wstring& text) = 0;
};

}  // namespace orvane
