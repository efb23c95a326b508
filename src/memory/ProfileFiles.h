#pragma once

#include "platform/FileSystem.h"
#include "platform/ProfileFiles.h"

namespace orvane::memory {

/// INI files of a file system, in code page 1252 or Unicode with its mark. Calls fail as the file
/// system's do.
class ProfileFiles : public orvane::ProfileFiles {
 public:
  explicit ProfileFiles(FileSystem& files) : m_files(files) {}

  std::wstring Text(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                    const std::wstring& fallback, std::size_t maxLength) override;
  std::int32_t Number(const std::wstring& file, const std::wstring& section,
                      const std::wstring& key, std::int32_t fallback) override;
  bool Write(const std::wstring& file, const std::wstring& section,
             const std::optional<std::wstring>& key,
             const std::optional<std::wstring>& value) override;

 private:
  FileSystem& m_files;
};

}  // namespace orvane::memory
