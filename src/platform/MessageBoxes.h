#pragma once

#include <string>

#include "platform/Handles.h"

namespace orvane {

/// Modal message boxes.
class MessageBoxes {
 public:
  enum class Icon { None, Stop, Question, Exclamation, Information };
  enum class Buttons { Ok, OkCancel, YesNo };
  enum class Answer { Ok, Cancel, Yes, No };

  virtual ~MessageBoxes() = default;

  /// Shows the box and waits for the answer; a box that cannot be shown answers Cancel, or No.
  virtual Answer Show(const std::wstring& text, const std::wstring& title, Icon icon,
                      Buttons buttons = Buttons::Ok) = 0;
};

}  // namespace orvane
