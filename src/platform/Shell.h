#pragma once

#include <cstdint>
#include <string>

#include "platform/Handles.h"
#include "platform/ItemIdList.h"

namespace orvane {

/// The shell's name space: paths, item-identifier lists and display names. A text output is empty
/// and a list none when the shell has no answer.
class Shell {
 public:
  virtual ~Shell() = default;

  /// File-system path; empty for a virtual folder.
  virtual std::wstring Path(const ItemIdList& item) = 0;

  /// The item a path names, as the desktop folder parses it.
  virtual ItemIdList Parse(WindowHandle owner, const std::wstring& path) = 0;

  /// The special folder of a CSIDL number (0 the desktop, 5 the documents, ...).
  virtual ItemIdList SpecialFolder(WindowHandle owner, std::int32_t csidl) = 0;

  virtual std::wstring DisplayName(const ItemIdList& item) = 0;
  virtual std::wstring DisplayName(const std::wstring& path) = 0;
};

}  // namespace orvane
