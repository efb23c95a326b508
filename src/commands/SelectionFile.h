#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "platform/FileSystem.h"
#include "support/Error.h"

namespace orvane {

/// Why a file does not hold what it should.
struct FileFailure {
  Error error;
  bool opened = false;  // it was opened, and then not written
};

/// Writes the bytes as the file, in place of what was there. A file that is there keeps its
/// contents until all of the new ones are on the disk, unless its folder takes no file beside it or
/// does not let it be replaced: then it is written as it stands. None when it went well.
std::optional<FileFailure> WriteSelectionFile(FileSystem& files, const std::wstring& path,
                                              std::span<const std::byte> bytes);

/// The numbered error of a Windows error code of the file system.
Error FileError(std::uint32_t code);

}  // namespace orvane
