#pragma once

#include "platform/Clipboard.h"

namespace orvane::win32 {

/// The clipboard of the window station.
class Clipboard : public orvane::Clipboard {
 public:
  bool Clear() override;
  bool SetText(const std::wstring& text) override;
};

}  // namespace orvane::win32
