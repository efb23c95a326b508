#pragma once

#include "platform/Registry.h"

namespace orvane::win32 {

class Registry : public orvane::Registry {
 public:
  std::int32_t OpenToRead(Hive hive, const std::wstring& path,
                          std::unique_ptr<RegistryKey>& key) override;
  std::int32_t OpenToWrite(Hive hive, const std::wstring& path,
                           std::unique_ptr<RegistryKey>& key) override;
};

}  // namespace orvane::win32
