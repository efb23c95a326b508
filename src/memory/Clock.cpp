#include "memory/Clock.h"

namespace orvane::memory {

using namespace std::chrono;

LocalTime Clock::Now() {
  const auto day = floor<days>(m_now);
  const year_month_day date{day};
  const hh_mm_ss time{floor<seconds>(m_now - day)};
  LocalTime now;
  now.year = int{date.year()};
  now.month = static_cast<int>(unsigned{date.month()});
  now.day = static_cast<int>(unsigned{date.day()});
  now.dayOfWeek = static_cast<int>(weekday{day}.c_encoding());
  now.hour = static_cast<int>(time.hours().count());
  now.minute = static_cast<int>(time.minutes().count());
  now.second = static_cast<int>(time.seconds().count());
  return now;
}

void Clock::Pause(std::uint32_t milliseconds) {
  m_effects.Add(Effect("Sleep").With("ms", std::int64_t{milliseconds}));
  Advance(milliseconds);
}

void Clock::Set(const LocalTime& now) {
  const local_days day{year{now.year} / now.month / now.day};
  m_now = day + hours{now.hour} + minutes{now.minute} + seconds{now.second};
}

void Clock::Advance(std::uint32_t milliseconds) {
  m_now += std::chrono::milliseconds{milliseconds};
  m_ticks += milliseconds;
}

}  // namespace orvane::memory
