#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

enum class Hive { ClassesRoot, CurrentUser, LocalMachine, Users, CurrentConfig, DynData };

/// A registry value as it is stored: texts are UTF-16LE with whatever zeros were written.
struct RegistryValue {
  static constexpr std::uint32_t Text = 1;          // REG_SZ
  static constexpr std::uint32_t TextToExpand = 2;  // REG_EXPAND_SZ
  static constexpr std::uint32_t Binary = 3;        // REG_BINARY
  static constexpr std::uint32_t Number = 4;        // REG_DWORD

  std::uint32_t type = 0;
  std::vector<std::byte> data;
  bool isFlag = false;  // a Number that was written as yes or no; not stored
};

/// An open registry key; closed with the object. Every method answers 0 or the Win32 error code. A
/// key opened for reading cannot be written and the other way round.
class RegistryKey {
 public:
  static constexpr std::int32_t NotFound = 2;  // ERROR_FILE_NOT_FOUND

  virtual ~RegistryKey() = default;

  /// NotFound when the key has no value of that name. `value` stays untouched on failure. A
  /// TextToExpand is read as the Text that it stands for, with the environment's variables in it.
  virtual std::int32_t Read(const std::wstring& name, RegistryValue& value) = 0;
  virtual std::int32_t Write(const std::wstring& name, const RegistryValue& value) = 0;
};

/// The registry: keys by hive and path, names compared without regard to case.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Opens an existing key for reading; NotFound when there is none. `path` may end in "\".
  /// `key` stays untouched on failure.
  virtual std::int32_t OpenToRead(Hive hive, const std::wstring& path,
                                  std::unique_ptr<RegistryKey>& key) = 0;

  /// Opens a key for writing and creates it, with the keys above it, when it is not there.
  virtual std::int32_t OpenToWrite(Hive hive, const std::wstring& path,
                                   std::unique_ptr<RegistryKey>& key) = 0;
};

}  // namespace orvane
