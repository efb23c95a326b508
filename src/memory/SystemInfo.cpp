#include "memory/SystemInfo.h"

#include "memory/Windows1252.h"
#include "support/Text.h"

namespace orvane::memory {

std::wstring SystemInfo::Environment(const std::wstring& name) {
  const auto found = m_environment.find(LowerCase(name));
  return found == m_environment.end() ? std::wstring() : found->second;
}

void SystemInfo::SetEnvironment(const std::wstring& name, std::wstring value) {
  m_environment[LowerCase(name)] = std::move(value);
}

std::wstring SystemInfo::Expand(const std::wstring& text) {
  std::wstring expanded;
  std::size_t place = 0;
  for (std::size_t start, end; (start = text.find(L'%', place)) != std::wstring::npos &&
                               (end = text.find(L'%', start + 1)) != std::wstring::npos;
       place = end + 1) {
    const std::wstring value = Environment(text.substr(start + 1, end - start - 1));
    expanded += text.substr(place, start - place);
    expanded += value.empty() ? text.substr(start, end + 1 - start) : value;
  }
  return expanded + text.substr(place);
}

std::array<wchar_t, 256> SystemInfo::AnsiCharacters() {
  return Windows1252();
}

}  // namespace orvane::memory
