#pragma once

#include "platform/FileOperations.h"

namespace orvane::win32 {

/// SHFileOperation.
class FileOperations : public orvane::FileOperations {
 public:
  std::int32_t Run(WindowHandle owner, Function function, const FileNames& from,
                   const std::wstring& to, std::uint16_t flags) override;
};

}  // namespace orvane::win32
