#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace orvane::host {

using Work = std::function<void()>;

inline double Milliseconds(const Work& work) {
  LARGE_INTEGER frequency, start, end;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  work();
  QueryPerformanceCounter(&end);
  return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) /
         static_cast<double>(frequency.QuadPart);
}

inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// A line of bench/report: the work, the product's time for it and that of the bare calls.
inline void PrintRow(const char* work, const std::vector<double>& whole,
                     const std::vector<double>& bare) {
  std::printf("%s\t%.6f\t%.6f\n", work, Median(whole), Median(bare));
  std::fflush(stdout);
}

/// Runs both in turn, so that what else the machine does falls on both, and prints the medians.
inline void Compare(const char* work, int runs, const Work& whole, const Work& bare) {
  std::vector<double> wholeTimes, bareTimes;
  for (int run = 0; run < runs; ++run) {
    bareTimes.push_back(Milliseconds(bare));
    wholeTimes.push_back(Milliseconds(whole));
  }
  PrintRow(work, wholeTimes, bareTimes);
}

}  // namespace orvane::host
