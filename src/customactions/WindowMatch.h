#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "customactions/CustomAction.h"
#include "platform/Windows.h"

namespace orvane {

class clsProcess;

/// A text beside its lower-case form, so that a long caption is not folded anew for every action.
struct MatchText {
  explicit MatchText(std::wstring szText = {});

  std::wstring text;
  std::wstring lower;
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

/// What an action asks of a window.
struct Criterion {
  const wchar_t* key;      // of the pattern in the file
  const wchar_t* modeKey;  // of its mode
  std::wstring CustomAction::*pattern;
  std::int32_t CustomAction::*mode;
  MatchText MatchTarget::Window::*value;  // null: the program
};

/// In the order in which they are tested.
inline constexpr Criterion Criteria[] = {
    {L"Exe", L"ExeMatch", &CustomAction::m_szExe, &CustomAction::m_lExeMatch, nullptr},
    {L"Caption", L"CaptionMatch", &CustomAction::m_szCaption, &CustomAction::m_lCaptionMatch,
     &MatchTarget::Window::caption},
    {L"Class", L"ClassMatch", &CustomAction::m_szClass, &CustomAction::m_lClassMatch,
     &MatchTarget::Window::className}};

inline bool IsUsed(const CustomAction& action, const Criterion& criterion) {
  return action.*criterion.mode > CustomAction::OptionMatchIgnore;
}

/// What of the target passes a used criterion, null when nothing does: the program is the window's
/// own, not any that happens to run; of the windows the first that passes.
const MatchText* PassingValue(const CustomAction& action, const Criterion& criterion,
                              const MatchTarget& target);

MatchTarget LookAtWindow(Windows& windows, clsProcess& process, WindowHandle hWnd);

}  // namespace orvane
