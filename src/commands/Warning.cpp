#include "commands/Warning.h"

#include <utility>

#include "support/ProductName.h"
#include "support/ThreadState.h"

namespace orvane {

void Warn(MessageBoxes& boxes, const std::wstring& text) {
  boxes.Show(text, g_szAppTitle, MessageBoxes::Icon::Exclamation);
}

void SetPendingError(PendingError error) {
  if (ThreadState* state = ThreadState::Current()) state->pending = std::move(error);
}

PendingError GetPendingError() {
  const ThreadState* state = ThreadState::Current();
  return state ? state->pending : PendingError();
}

void WarnOfPendingError(MessageBoxes& boxes, const std::wstring& path) {
  constexpr std::int32_t FileNotFound = 53;
  constexpr std::int32_t PathNotFound = 76;
  const PendingError error = GetPendingError();
  if (error.number == FileNotFound || error.number == PathNotFound)
    Warn(boxes, L"Path not found - " + path);
  else if (error.number >= 1)
    Warn(boxes, error.description);
}

}  // namespace orvane
