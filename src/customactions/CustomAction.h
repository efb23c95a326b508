#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// The record of one custom action, with what it has where the file says nothing.
struct CustomAction {
  static constexpr std::int32_t TypeAny = -1;
  static constexpr std::int32_t TypeWindow = 1;   // played into the window that asked for the menu
  static constexpr std::int32_t TypeGeneral = 2;  // tied to no window

  static constexpr std::int32_t OptionEnabled = 1;  // bit of m_lOptions

  static constexpr std::int32_t OptionMatchIgnore = 0;
  static constexpr std::int32_t OptionMatchPartial = 1;   // the value begins with the pattern
  static constexpr std::int32_t OptionMatchExact = 2;     // the value is the pattern
  static constexpr std::int32_t OptionMatchAnywhere = 4;  // the value occurs in the pattern

  std::wstring m_szId;  // the section's name
  std::int32_t m_lType = TypeAny;
  std::int32_t m_lOrder = 0;
  std::wstring m_szDescription;
  std::wstring m_szExe;
  std::int32_t m_lExeMatch = OptionMatchIgnore;
  std::wstring m_szClass;
  std::int32_t m_lClassMatch = OptionMatchIgnore;
  std::wstring m_szCaption;
  std::int32_t m_lCaptionMatch = OptionMatchIgnore;
  std::wstring m_szActions;  // the script
  std::int32_t m_lOptions = 0;

  bool IsOptionEnabled() const { return (m_lOptions & OptionEnabled) > 0; }

  bool operator==(const CustomAction&) const = default;
};

}  // namespace orvane
