#include "memory/RegistryText.h"

#include "support/Utf16.h"

namespace orvane::memory {

RegistryValue TextValue(std::wstring_view text) {
  std::wstring stored(text);
  stored.push_back(L'\0');
  return {RegistryValue::Text, ToUtf16(stored)};
}

RegistryValue NumberValue(std::uint32_t number) {
  RegistryValue value{RegistryValue::Number, {}};
  for (int shift = 0; shift < 32; shift += 8) {
    value.data.push_back(static_cast<std::byte>(number >> shift & 0xFF));
  }
  return value;
}

std::wstring TextOf(const RegistryValue& value) {
  std::wstring text = FromUtf16(value.data);
  if (!text.empty() && text.back() == L'\0') text.pop_back();
  return text;
}

std::optional<std::uint32_t> NumberOf(const RegistryValue& value) {
  if (value.data.size() != 4) return std::nullopt;
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) {
    number = number << 8 | std::to_integer<std::uint32_t>(value.data[i]);
  }
  return number;
}

}  // namespace orvane::memory
