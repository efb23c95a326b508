#include "win32/PlayKeys.h"

#include <vector>

#include "win32/KeyInput.h"
#include "win32/KeyTarget.h"
#include "win32/Typist.h"

namespace orvane::win32 {

bool PlayKeys(std::span<const KeyEvent> events) {
  KeyTarget target = FindKeyTarget();
  if (!target.window) return false;
  std::vector<KeyEvent> all = HeldModifiersUp();
  const std::vector<KeyEvent> keys = OnLayout(events, GetKeyboardLayout(target.thread));
  all.insert(all.end(), keys.begin(), keys.end());

  Typist typist;
  const std::span<const KeyEvent> left(all);
  for (std::size_t i = 0; i < left.size(); ++i, target = FindKeyTarget()) {
    if (target.IsOwn()) return SendTogether(left.subspan(i));
    if (target.window && typist.Type(target, left[i])) continue;
    ReleaseHeld(left.first(i + 1));
    return false;
  }
  return true;
}

}  // namespace orvane::win32
