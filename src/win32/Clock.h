#pragma once

#include "platform/Clock.h"

namespace orvane::win32 {

class Clock : public orvane::Clock {
 public:
  std::uint32_t Ticks() override;
  LocalTime Now() override;
  void Pause(std::uint32_t milliseconds) override;
};

}  // namespace orvane::win32
