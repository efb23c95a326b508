// Date formats, and date pictures of the locale: a text of bounded length in one pass, and a format
// of nothing but escaped characters is those characters.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "memory/Locale.h"
#include "support/DateFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orvane::LocalTime time{2024, 2, 29, 4, static_cast<int>(size % 24), 5, 6};
  const std::wstring format(data, data + size);
  orvane::memory::Locale locale;
  if (orvane::FormatDate(locale, time, format).size() > 32 * size + 32) std::abort();

  std::wstring escaped;
  for (const wchar_t c : format) escaped.append({L'\\', c});
  if (size > 0 && orvane::FormatDate(locale, time, escaped) != format) std::abort();

  locale.Set(orvane::Locale::Fact::LongDatePattern, format);
  if (orvane::FormatDate(locale, time, L"Long Date").size() > 32 * size) std::abort();
  return 0;
}
