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

std::array<wchar_t, 256> SystemInfo::AnsiCharacters() {
  return Windows1252();
}

}  // namespace orvane::memory
