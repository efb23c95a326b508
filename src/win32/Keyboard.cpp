#include "win32/Keyboard.h"

#include "win32/KeyScore.h"
#include "win32/KeyTarget.h"
#include "win32/NativeHandles.h"
#include "win32/PlayKeys.h"

namespace orvane::win32 {

bool Keyboard::IsDown(std::uint16_t virtualKey) {
  return GetAsyncKeyState(virtualKey) < 0;
}

WindowHandle Keyboard::Front() {
  return FromNative<WindowHandle>(GetForegroundWindow());
}

void Keyboard::Press(std::uint16_t virtualKey, bool up) {
  keybd_event(static_cast<BYTE>(virtualKey),
              static_cast<BYTE>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)),
              up ? KEYEVENTF_KEYUP : 0, 0);
}

bool Keyboard::Type(const std::vector<KeyText>& texts) {
  std::vector<KeyEvent> events;
  for (const KeyText& text : texts)
    events.insert(events.end(), text.events.begin(), text.events.end());
  if (events.empty()) return true;
  KeyScore* waiting = KeyScore::Current();
  if (!waiting) return PlayKeys(events);
  waiting->AddKeys(std::move(events));
  return true;
}

void Keyboard::Pause(std::uint32_t milliseconds) {
  if (KeyScore::Current() || FindKeyTarget().IsOwn())
    KeyScore::AddPause(milliseconds);
  else
    WaitAnswering(milliseconds);
}

}  // namespace orvane::win32
