#pragma once

#include <optional>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/Clipboard.h"

namespace orvane::memory {

/// A clipboard that holds one text. Putting one there is an effect ("SetClipboard").
class Clipboard : public orvane::Clipboard {
 public:
  Clipboard(Effects& effects, Faults& faults) : m_effects(effects), m_faults(faults) {}

  bool Clear() override {
    if (heldOpen || m_faults.Hit()) return false;
    text.reset();
    return true;
  }

  bool SetText(const std::wstring& newText) override {
    if (heldOpen || m_faults.Hit()) return false;
    text = newText.substr(0, newText.find(L'\0'));
    m_effects.Add(Effect("SetClipboard").With("text", *text));
    return true;
  }

  std::optional<std::wstring> text;  // none when the clipboard is empty
  bool heldOpen = false;             // another program has it and does not let go

 private:
  Effects& m_effects;
  Faults& m_faults;
};

}  // namespace orvane::memory
