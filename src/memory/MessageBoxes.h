#pragma once

#include "memory/Answers.h"
#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/MessageBoxes.h"

namespace orvane::memory {

/// Message boxes recorded as effects ("MessageBox"). The next scripted answer is taken when it is
/// one of the box's buttons; without one the answer is Ok or Yes.
class MessageBoxes : public orvane::MessageBoxes {
 public:
  MessageBoxes(Effects& effects, Faults& faults, Answers& answers)
      : m_effects(effects), m_faults(faults), m_answers(answers) {}

  Answer Show(const std::wstring& text, const std::wstring& title, Icon icon,
              Buttons buttons = Buttons::Ok) override;

 private:
  Effects& m_effects;
  Faults& m_faults;
  Answers& m_answers;
};

}  // namespace orvane::memory
