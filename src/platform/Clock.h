#pragma once

#include <cstdint>

namespace orvane {

/// A local date and time.
struct LocalTime {
  int year = 1601;
  int month = 1;      // 1 to 12
  int day = 1;        // 1 to 31
  int dayOfWeek = 0;  // 0 Sunday to 6 Saturday
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;

  /// Milliseconds since some start; wraps around.
  virtual std::uint32_t Ticks() = 0;
  virtual LocalTime Now() = 0;
  virtual void Pause(std::uint32_t milliseconds) = 0;
};

}  // namespace orvane
