#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/FileSystem.h"
#include "platform/ProfileFiles.h"
#include "platform/Registry.h"

namespace orvane {

// Result codes beside the registry's own (Windows' error codes).
constexpr std::int32_t InvalidHive = 99;
constexpr std::int32_t InvalidData = 13;  // ERROR_INVALID_DATA: there, but not what was asked for

// Typed values of an open key. The type of the variable says how a value is stored: a text as
// REG_SZ with one terminating zero, a boolean as REG_DWORD 1 or 0, a number as REG_DWORD. What
// other programs store is read too: a text without the zero or of no bytes, four bytes for a
// number. Reading leaves the variable as it was when it finds anything else; a text may hold zeros.
std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, std::wstring& value);
std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, bool& value);
std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, std::int32_t& value);
std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, const std::wstring& value);
std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, bool value);
std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, std::int32_t value);

/// What RegGet and RegSet reach.
struct RegistryAccess {
  Registry& registry;
  FileReader& files;
  ProfileFiles& profiles;
};

/// Kind "S" is a text, "B" (two bytes, REG_BINARY) and "BOOL" a boolean, "D" a number.
using RegValue = std::variant<std::wstring, bool, std::int32_t>;

/// Reads one value. `hive` is a root key's short name such as "HKCU" or, for a profile file, the
/// file's path with the section as `key`. `result` is `fallback` unless the value was read. 0 or
/// what failed; for a profile file the length of the text, or the number.
std::int32_t RegGet(const RegistryAccess& access, const std::wstring& hive, const std::wstring& key,
                    const std::wstring& name, std::wstring_view kind, const RegValue& fallback,
                    RegValue& result);

/// Writes one value and makes the key when it is not there. A profile file takes kind "S" only and
/// answers 1 when it was written.
std::int32_t RegSet(const RegistryAccess& access, const std::wstring& hive, const std::wstring& key,
                    const std::wstring& name, std::wstring_view kind, const RegValue& value);

}  // namespace orvane
