#pragma once

#include <string>

namespace orvane {

/// The user's date and time conventions.
class Locale {
 public:
  enum class Fact {
    DateSeparator,  // "/"
    TimeSeparator,  // ":"
    Morning,        // "AM"
    Afternoon,      // "PM"
    MonthName,      // index 1 to 12
    MonthAbbreviation,
    DayName,  // index 0 Sunday to 6 Saturday
    DayAbbreviation,
    ShortDatePattern,  // in Windows' date pictures: "dd/MM/yyyy"
    LongDatePattern,   // "dddd, d MMMM yyyy"
    TimePattern,       // "HH:mm:ss"
  };

  virtual ~Locale() = default;

  virtual std::wstring Text(Fact fact, int index = 0) = 0;
};

}  // namespace orvane
