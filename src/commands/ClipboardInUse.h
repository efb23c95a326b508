#pragma once

#include "support/Error.h"

namespace orvane {

/// Another program holds the clipboard open and does not let go. The description is fit for the
/// user.
class ClipboardInUse : public Error {
 public:
  static constexpr std::int32_t ErrorNumber = 521;

  ClipboardInUse()
      : Error(ErrorNumber,
              L"The clipboard is in use by another program. Please try again in a moment.") {}
};

}  // namespace orvane
