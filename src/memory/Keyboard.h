#pragma once

#include <set>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/Keyboard.h"

namespace orvane::memory {

/// A keyboard whose keys a test holds down. Keys pressed by the component are effects
/// ("keybd_event", "SendKeys"); nobody receives them.
class Keyboard : public orvane::Keyboard {
 public:
  Keyboard(Effects& effects, Faults& faults) : m_effects(effects), m_faults(faults) {}

  bool IsDown(std::uint16_t virtualKey) override { return down.contains(virtualKey); }

  void Press(std::uint16_t virtualKey, bool up) override {
    m_effects.Add(Effect("keybd_event").With("key", std::int64_t{virtualKey}).With("up", up));
  }

  bool Type(const std::wstring& text, const std::vector<KeyEvent>& events) override {
    if (m_faults.Hit()) return false;
    m_effects.Add(Effect("SendKeys").With("text", text));
    typed.insert(typed.end(), events.begin(), events.end());
    return true;
  }

  std::set<std::uint16_t> down;  // virtual keys that the user holds down
  std::vector<KeyEvent> typed;   // everything that Type was given

 private:
  Effects& m_effects;
  Faults& m_faults;
};

}  // namespace orvane::memory
