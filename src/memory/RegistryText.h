#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace orvane::memory {

/// A REG_SZ value of the text, with its terminating zero.
RegistryValue TextValue(std::wstring_view text);
RegistryValue NumberValue(std::uint32_t number);

/// The text of a value, without one terminating zero; a byte left over at the end is dropped.
std::wstring TextOf(const RegistryValue& value);

/// The number of a 4-byte value.
std::optional<std::uint32_t> NumberOf(const RegistryValue& value);

}  // namespace orvane::memory
