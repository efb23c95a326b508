#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/Patience.h"

namespace orvane::win32 {

/// Runs `work`, which asks the server of `path`, on a thread of its own and waits for it as long as
/// the patience lasts; false when it has not ended by then, or could not be started. Unfinished
/// work is left to itself: its thread keeps what it was given and this module until it ends. `work`
/// must not throw.
bool RunWithPatience(std::function<void()> work, const Patience& patience,
                     const std::wstring& path = {});

/// What `ask` answers, or `otherwise` when it takes too long.
template <class Answer, class Ask>
Answer AskWithPatience(Ask ask, const Patience& patience, Answer otherwise,
                       const std::wstring& path = {}) {
  const auto answer = std::make_shared<Answer>();
  const bool inTime =
      RunWithPatience([answer, ask = std::move(ask)] { *answer = ask(); }, patience, path);
  return inTime ? std::move(*answer) : std::move(otherwise);
}

}  // namespace orvane::win32
