#pragma once

#include <string>

#include "platform/Registry.h"

namespace orvane::memory {

/// What a registry export asks for.
struct RegFileChange {
  enum class Kind { AddKey, RemoveKey, Set, RemoveValue };

  Kind kind = Kind::AddKey;
  Hive hive = Hive::CurrentUser;
  std::wstring path;
  std::wstring name = {};
  RegistryValue value = {};
};

/// The names of the registry's parts, as exports have them.
struct HiveName {
  std::wstring_view name;
  Hive hive;
};
inline constexpr HiveName HiveNames[] = {
    {L"HKEY_CLASSES_ROOT", Hive::ClassesRoot},     {L"HKEY_CURRENT_USER", Hive::CurrentUser},
    {L"HKEY_LOCAL_MACHINE", Hive::LocalMachine},   {L"HKEY_USERS", Hive::Users},
    {L"HKEY_CURRENT_CONFIG", Hive::CurrentConfig}, {L"HKEY_DYN_DATA", Hive::DynData},
};

inline constexpr std::wstring_view RegFileHeader = L"Windows Registry Editor Version 5.00";

}  // namespace orvane::memory
