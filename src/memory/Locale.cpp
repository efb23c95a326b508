#include "memory/Locale.h"

#include <span>

namespace orvane::memory {

namespace {

constexpr const wchar_t* Months[] = {L"January",   L"February", L"March",    L"April",
                                     L"May",       L"June",     L"July",     L"August",
                                     L"September", L"October",  L"November", L"December"};
constexpr const wchar_t* Days[] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                   L"Thursday", L"Friday", L"Saturday"};

std::wstring Pick(std::span<const wchar_t* const> names, int index, std::size_t length) {
  if (index < 0 || static_cast<std::size_t>(index) >= names.size()) return {};
  return std::wstring(names[static_cast<std::size_t>(index)]).substr(0, length);
}

}  // namespace

std::wstring Locale::Text(Fact fact, int index) {
  if (const auto own = m_set.find({fact, index}); own != m_set.end()) return own->second;
  switch (fact) {
    case Fact::DateSeparator:
      return L"/";
    case Fact::TimeSeparator:
      return L":";
    case Fact::Morning:
      return L"AM";
    case Fact::Afternoon:
      return L"PM";
    case Fact::MonthName:
      return Pick(Months, index - 1, std::wstring::npos);
    case Fact::MonthAbbreviation:
      return Pick(Months, index - 1, 3);
    case Fact::DayName:
      return Pick(Days, index, std::wstring::npos);
    case Fact::DayAbbreviation:
      return Pick(Days, index, 3);
    case Fact::ShortDatePattern:
      return L"dd/MM/yyyy";
    case Fact::LongDatePattern:
      return L"dddd, d MMMM yyyy";
    case Fact::TimePattern:
      return L"HH:mm:ss";
  }
  return {};
}

void Locale::Set(Fact fact, std::wstring text, int index) {
  m_set[{fact, index}] = std::move(text);
}

}  // namespace orvane::memory
