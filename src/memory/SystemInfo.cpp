#include "memory/SystemInfo.h"

#include <algorithm>

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
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(L'%', start + 1)) != std::wstring::npos;) {
    const bool named = text[start] == L'%';
    const std::wstring value =
        named ? Environment(text.substr(start + 1, end - start - 1)) : std::wstring();
    expanded += value.empty() ? text.substr(start, end - start) : value;
    start = value.empty() ? end : end + 1;
  }
  return expanded + text.substr(std::min(start, text.size()));
}

std::array<wchar_t, 256> SystemInfo::AnsiCharacters() {
  return Windows1252();
}

}  // namespace orvane::memory
