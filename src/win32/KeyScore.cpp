#include "win32/KeyScore.h"

#include <memory>
#include <utility>

#include "win32/PlayKeys.h"

namespace orvane::win32 {
namespace {

thread_local constinit KeyScore* t_score = nullptr;

/// The timer calls this module after the handler whose script it plays has gone.
void StayLoaded() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<const wchar_t*>(&StayLoaded), &module);
}

}  // namespace

KeyScore* KeyScore::Current() {
  return t_score;
}

void KeyScore::AddPause(DWORD milliseconds) {
  auto made = t_score ? nullptr : std::make_unique<KeyScore>();
  KeyScore& score = made ? *made : *t_score;
  score.m_steps.push_back({milliseconds, {}});
  if (!made) return;
  StayLoaded();
  (t_score = made.release())->Wait(0);
}

void KeyScore::AddKeys(std::vector<KeyEvent> events) {
  std::vector<KeyEvent>& last = m_steps.back().events;
  last.insert(last.end(), events.begin(), events.end());
}

void KeyScore::Wait(DWORD milliseconds) {
  m_timer = SetTimer(nullptr, 0, milliseconds, OnTimer);
  if (m_timer != 0) return;
  t_score = nullptr;  // without a timer nothing more can be played
  delete this;
}

/// A timer's turn comes when no input waits: the first one says that the keys before the pause have
/// been taken, the second that it is over.
void KeyScore::GoOn() {
  if (!std::exchange(m_pausing, !m_pausing)) return Wait(m_steps.front().pause);
  const std::vector<KeyEvent> events = std::move(m_steps.front().events);
  m_steps.pop_front();
  const std::unique_ptr<KeyScore> done(m_steps.empty() ? this : nullptr);
  if (done)
    t_score = nullptr;
  else
    Wait(0);
  if (!events.empty()) PlayKeys(events);
}

void CALLBACK KeyScore::OnTimer(HWND, UINT, UINT_PTR timer, DWORD) noexcept {
  KillTimer(nullptr, timer);
  if (!t_score || t_score->m_timer != timer) return;
  try {
    t_score->GoOn();
  } catch (...) {
    delete std::exchange(t_score, nullptr);
  }
}

}  // namespace orvane::win32
