#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace orvane::memory {

/// The characters of code page 1252; the five open bytes stand for the control character of their
/// number.
const std::array<wchar_t, 256>& Windows1252();

/// Bytes as text, for the log of effects.
std::wstring DecodeAnsi(std::span<const std::byte> bytes);

}  // namespace orvane::memory
