#pragma once

#include <deque>
#include <optional>
#include <string>

namespace orvane::memory {

/// What the user will say to the dialogs and message boxes of a session, in turn: "ok", "cancel",
/// "yes", "no", a folder to copy to, a path to pick.
class Answers {
 public:
  void Add(std::wstring answer) { m_answers.push_back(std::move(answer)); }

  /// The next answer, without taking it; null when there is none.
  const std::wstring* Peek() const { return m_answers.empty() ? nullptr : &m_answers.front(); }

  /// Takes the next answer; none when there is none left.
  std::optional<std::wstring> Take() {
    if (m_answers.empty()) return std::nullopt;
    std::wstring answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
  }

 private:
  std::deque<std::wstring> m_answers;
};

}  // namespace orvane::memory
