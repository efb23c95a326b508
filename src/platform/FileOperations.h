#pragma once

#include <cstdint>
#include <string>

#include "platform/DataObject.h"
#include "platform/Handles.h"

namespace orvane {

/// The shell's own copying and moving, with its progress window, questions and undo.
class FileOperations {
 public:
  enum class Function { Move = 1, Copy = 2 };       // FO_*
  static constexpr std::uint16_t AllowUndo = 0x40;  // FOF_ALLOWUNDO

  virtual ~FileOperations() = default;

  /// Copies or moves all the names into the folder `to` in one operation and returns when it is
  /// over; 0 or the shell's error code. Nothing to do is no error. A destination with a zero
  /// character in it ends there. A name with a wildcard in it, for which the shell would take every
  /// file that matches, is refused with InvalidName.
  virtual std::int32_t Run(WindowHandle owner, Function function, const FileNames& from,
                           const std::wstring& to, std::uint16_t flags) = 0;

  static constexpr std::int32_t InvalidName = 123;  // ERROR_INVALID_NAME

 protected:
  static bool HasWildcard(const FileNames& names) {
    return names.All().find_first_of(L"*?") != std::wstring_view::npos;
  }
};

}  // namespace orvane
