#pragma once

#include "platform/ProfileFiles.h"

namespace orvane::win32 {

class ProfileFiles : public orvane::ProfileFiles {
 public:
  std::wstring Text(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                    const std::wstring& fallback, std::size_t maxLength) override;
  std::int32_t Number(const std::wstring& file, const std::wstring& section,
                      const std::wstring& key, std::int32_t fallback) override;
  bool Write(const std::wstring& file, const std::wstring& section,
             const std::optional<std::wstring>& key,
             const std::optional<std::wstring>& value) override;
};

}  // namespace orvane::win32
