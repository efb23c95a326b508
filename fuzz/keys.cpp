// The keystroke notation: whatever the text, it is refused with an Error or gives bounded events
// that release every key they press.

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>

#include "customactions/KeyNotation.h"
#include "support/Error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text(data, data + size);
  try {
    const auto events = orvane::ParseKeyNotation(text);
    if (events.size() > orvane::MaxKeyEvents) std::abort();
    std::multiset<std::uint32_t> down;
    for (const orvane::KeyEvent& event : events) {
      const std::uint32_t key = event.code | static_cast<std::uint32_t>(event.kind) << 16;
      if (!event.up) {
        if (down.contains(key)) std::abort();
        down.insert(key);
      } else if (down.erase(key) != 1) {
        std::abort();
      }
    }
    if (!down.empty()) std::abort();
  } catch (const orvane::Error&) {
  }
  return 0;
}
