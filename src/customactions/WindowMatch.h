#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Windows.h"

namespace orvane {

class clsProcess;

/// A text beside its lower-case form, so that a long caption is not folded anew for every action.
struct MatchText {
  explicit MatchText(std::wstring szText = {});

  std::wstring text;
  std::wstring lower;
};

struct MatchMode {
  static constexpr std::int32_t Ignore = 0;
  static constexpr std::int32_t Partial = 1;   // the value begins with the pattern, in any case
  static constexpr std::int32_t Exact = 2;     // the value is the pattern
  static constexpr std::int32_t Anywhere = 4;  // the value occurs in the pattern, in any case
};

/// Whether the value `szDest` satisfies the pattern `szSrc`; always in a mode that is none.
bool MatchString(const MatchText& szSrc, const MatchText& szDest, std::int32_t lMode);

/// What actions are matched against: a window, all windows above it and its program.
struct MatchTarget {
  struct Window {
    MatchText className;
    MatchText caption;
  };

  std::vector<Window> chain;  // the window first, then its parent, and so on
  MatchText exe;              // full path; empty when it cannot be had
};

MatchTarget LookAtWindow(Windows& windows, clsProcess& process, WindowHandle hWnd);

}  // namespace orvane
