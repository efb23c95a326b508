#include "win32/KeyInput.h"

#include <algorithm>
#include <optional>

namespace orvane::win32 {
namespace {

/// Keys of the block between letters and number pad, which share their scan codes with the latter,
/// and the right-hand modifiers, which share theirs with the left.
constexpr WORD ExtendedKeys[] = {VK_PRIOR,    VK_NEXT,     VK_END,  VK_HOME,   VK_LEFT,
                                 VK_UP,       VK_RIGHT,    VK_DOWN, VK_INSERT, VK_DELETE,
                                 VK_LWIN,     VK_RWIN,     VK_APPS, VK_DIVIDE, VK_NUMLOCK,
                                 VK_SNAPSHOT, VK_RCONTROL, VK_RMENU};

constexpr WORD Modifiers[] = {VK_LSHIFT, VK_RSHIFT, VK_LCONTROL, VK_RCONTROL,
                              VK_LMENU,  VK_RMENU,  VK_LWIN,     VK_RWIN};

INPUT InputOf(const KeyEvent& event) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  KEYBDINPUT& key = input.ki;
  if (event.kind == KeyEvent::Kind::VirtualKey) {
    key.wVk = event.code;
    key.wScan = static_cast<WORD>(MapVirtualKeyW(event.code, MAPVK_VK_TO_VSC));
    if (std::ranges::find(ExtendedKeys, event.code) != std::end(ExtendedKeys))
      key.dwFlags = KEYEVENTF_EXTENDEDKEY;
  } else {
    key.wScan = event.code;
    key.dwFlags = KEYEVENTF_UNICODE;
  }
  if (event.up) key.dwFlags |= KEYEVENTF_KEYUP;
  return input;
}

struct LayoutKey {
  std::uint16_t code;
  bool shifted;
};

/// Ctrl and Alt are part of AltGr: with them a key of that level would be a different shortcut.
std::optional<LayoutKey> KeyOf(std::uint16_t unit, HKL layout) {
  const auto found = static_cast<unsigned>(VkKeyScanExW(static_cast<WCHAR>(unit), layout)) & 0xFFFF;
  const unsigned level = found >> 8;
  if (found == 0xFFFF || level > 1) return {};
  return LayoutKey{static_cast<std::uint16_t>(found & 0xFF), level == 1};
}

}  // namespace

std::vector<KeyEvent> OnLayout(std::span<const KeyEvent> events, HKL layout) {
  std::vector<KeyEvent> result;
  result.reserve(events.size());
  bool shiftHeld = false;
  for (KeyEvent event : events) {
    if (event.kind == KeyEvent::Kind::VirtualKey && event.code == Keyboard::Shift)
      shiftHeld = !event.up;
    bool shift = false;
    if (event.kind == KeyEvent::Kind::Shortcut) {
      const auto key = KeyOf(event.code, layout);
      event.kind = key ? KeyEvent::Kind::VirtualKey : KeyEvent::Kind::Character;
      if (key) event.code = key->code;
      shift = key && key->shifted && !shiftHeld;
    }
    if (shift && !event.up) result.push_back({.code = Keyboard::Shift});
    result.push_back(event);
    if (shift && event.up) result.push_back({.code = Keyboard::Shift, .up = true});
  }
  return result;
}

std::vector<KeyEvent> HeldModifiersUp() {
  std::vector<KeyEvent> releases;
  for (const WORD key : Modifiers) {
    if (GetAsyncKeyState(key) < 0) releases.push_back({.code = key, .up = true});
  }
  return releases;
}

bool SendTogether(std::span<const KeyEvent> events) {
  std::vector<INPUT> inputs;
  inputs.reserve(events.size());
  std::ranges::transform(events, std::back_inserter(inputs), InputOf);
  if (inputs.empty()) return true;
  const UINT sent = SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
  if (sent == inputs.size()) return true;
  ReleaseHeld(events.first(sent));
  return false;
}

void ReleaseHeld(std::span<const KeyEvent> sent) {
  std::vector<KeyEvent> held;
  for (const KeyEvent& event : sent) {
    if (event.up) {
      std::erase_if(held, [&](const KeyEvent& key) { return key.code == event.code; });
    } else if (event.kind == KeyEvent::Kind::VirtualKey) {
      held.push_back(event);
    }
  }
  for (KeyEvent& event : held) {
    event.up = true;
    INPUT input = InputOf(event);
    SendInput(1, &input, sizeof input);
  }
}

}  // namespace orvane::win32
