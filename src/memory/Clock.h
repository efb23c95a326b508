#pragma once

#include <chrono>

#include "memory/Effects.h"
#include "platform/Clock.h"

namespace orvane::memory {

/// A clock that stands still until somebody waits on it or a test moves it. Starts on Monday,
/// 1 January 2024, 09:05:07, with the tick counter at 1,000,000. A pause is recorded as an effect
/// ("Sleep", in milliseconds).
class Clock : public orvane::Clock {
 public:
  explicit Clock(Effects& effects) : m_effects(effects) {}

  std::uint32_t Ticks() override { return m_ticks; }
  LocalTime Now() override;
  void Pause(std::uint32_t milliseconds) override;

  void Set(const LocalTime& now);  // dayOfWeek is worked out
  void SetTicks(std::uint32_t ticks) { m_ticks = ticks; }
  void Advance(std::uint32_t milliseconds);

 private:
  Effects& m_effects;
  std::chrono::local_time<std::chrono::milliseconds> m_now =
      std::chrono::local_days{std::chrono::year{2024} / 1 / 1} + std::chrono::hours{9} +
      std::chrono::minutes{5} + std::chrono::seconds{7};
  std::uint32_t m_ticks = 1'000'000;
};

}  // namespace orvane::memory
