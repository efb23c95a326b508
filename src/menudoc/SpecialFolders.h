#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orvane {

/// A special folder of Windows by the name that documents know it by.
struct SpecialFolder {
  std::wstring_view name;
  std::int32_t number;        // CSIDL; NoNumber for a folder that has none
  std::wstring_view below{};  // without a number: its place in the user's profile

  static constexpr std::int32_t NoNumber = -1;
  static constexpr std::int32_t Profile = 40;
};

std::span<const SpecialFolder> SpecialFolders();
/// By name in any case; none when no special folder is called so.
const SpecialFolder* FindSpecialFolder(std::wstring_view name);
/// Whether Windows has a special folder of that number, with a name here or without.
bool IsSpecialFolder(std::int32_t number);

}  // namespace orvane
