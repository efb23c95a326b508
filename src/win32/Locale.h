#pragma once

#include "platform/Locale.h"

namespace orvane::win32 {

class Locale : public orvane::Locale {
 public:
  std::wstring Text(Fact fact, int index = 0) override;
};

}  // namespace orvane::win32
