#include "win32/Clock.h"

#include <windows.h>

namespace orvane::win32 {

// The tick counts of kernel32 stand still for 16 ms at a time, and the library of timeGetTime takes
// 4 ms to load.
std::uint32_t Clock::Ticks() {
  LARGE_INTEGER count;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return static_cast<std::uint32_t>(static_cast<std::uint64_t>(count.QuadPart) * 1000 /
                                    static_cast<std::uint64_t>(frequency.QuadPart));
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
