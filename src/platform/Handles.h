#pragma once

#include <cstdint>

namespace orvane {

// Opaque handles of the desktop; None (0) is no handle. Menu, window and GDI handles have 32
// significant bits on 64-bit Windows too (Windows: "Interprocess Communication Between 32-bit and
// 64-bit Applications"), so they fit the 32-bit number fields of the menu's records.
enum class MenuHandle : std::uint32_t { None = 0 };
enum class WindowHandle : std::uint32_t { None = 0 };
enum class BitmapHandle : std::uint32_t { None = 0 };
enum class IconHandle : std::uint32_t { None = 0 };
enum class DeviceContext : std::uint32_t { None = 0 };
enum class BrushHandle : std::uint32_t { None = 0 };
enum class PenHandle : std::uint32_t { None = 0 };
enum class FontHandle : std::uint32_t { None = 0 };
enum class PaletteHandle : std::uint32_t { None = 0 };

/// The number form in which records, logs and messages carry a handle.
template <class Handle>
constexpr std::int32_t ToNumber(Handle handle) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(handle));
}

/// The handle that ToNumber turned into `number`.
template <class Handle>
constexpr Handle ToHandle(std::int32_t number) {
  return static_cast<Handle>(static_cast<std::uint32_t>(number));
}

}  // namespace orvane
