#include "win32/Clock.h"

#include <windows.h>

#include <timeapi.h>

namespace orvane::win32 {

std::uint32_t Clock::Ticks() {
  return timeGetTime();
}

LocalTime Clock::Now() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  return {time.wYear, time.wMonth,  time.wDay,   time.wDayOfWeek,
          time.wHour, time.wMinute, time.wSecond};
}

void Clock::Pause(std::uint32_t milliseconds) {
  Sleep(milliseconds);
}

}  // namespace orvane::win32
