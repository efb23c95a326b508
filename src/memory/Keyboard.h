#pragma once

#include <set>

#include "memory/Clock.h"
#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/Keyboard.h"

namespace orvane::memory {

/// A keyboard whose keys a test holds down. Keys pressed by the component are effects
/// ("keybd_event", "SendKeys"); nobody receives them, but Win+R brings a dialog to the front.
/// Pauses are the clock's.
class Keyboard : public orvane::Keyboard {
 public:
  Keyboard(Clock& clock, Effects& effects, Faults& faults)
      : m_clock(clock), m_effects(effects), m_faults(faults) {}

  bool IsDown(std::uint16_t virtualKey) override { return down.contains(virtualKey); }

  WindowHandle Front() override {
    if (m_opening && m_clock.Ticks() - m_pressedAt >= runDialogAfter) {
      m_opening = false;
      ++m_front;
    }
    return WindowHandle{m_front};
  }

  void Press(std::uint16_t virtualKey, bool up) override {
    m_effects.Add(Effect("keybd_event").With("key", std::int64_t{virtualKey}).With("up", up));
    if (virtualKey != LetterR || up) return;
    m_opening = true;
    m_pressedAt = m_clock.Ticks();
  }

  bool Type(const std::vector<KeyText>& texts) override {
    if (m_faults.Hit()) return false;
    for (const auto& [text, events] : texts) {
      m_effects.Add(Effect("SendKeys").With("text", text));
      typed.insert(typed.end(), events.begin(), events.end());
    }
    return true;
  }

  void Pause(std::uint32_t milliseconds) override { m_clock.Pause(milliseconds); }

  std::set<std::uint16_t> down;       // virtual keys that the user holds down
  std::uint32_t runDialogAfter = 50;  // milliseconds from Win+R until its dialog is in front
  std::vector<KeyEvent> typed;        // everything that Type was given

 private:
  Clock& m_clock;
  Effects& m_effects;
  Faults& m_faults;
  std::uint32_t m_front = 0x1000;  // a window of its own for each dialog
  bool m_opening = false;
  std::uint32_t m_pressedAt = 0;
};

}  // namespace orvane::memory
