#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "win32/UniqueHandle.h"

namespace orvane::designerapp {

inline constexpr const wchar_t* MainWindowClass = L"OrvaneDesigner";

/// The user's one designer of a session, unless several are allowed.
class OneInstance {
 public:
  /// Whether this is the first. Until it ends the next ones are not.
  bool IsFirst();

  /// Brings the first one to the front and hands it a file (empty: none). False when it does not
  /// show itself or answer in time.
  static bool HandOver(const std::wstring& file);

  /// The file that a message of HandOver carries; none for any other WM_COPYDATA.
  static std::optional<std::wstring> FileOf(const COPYDATASTRUCT& data);

 private:
  win32::UniqueKernelHandle m_mutex;
};

}  // namespace orvane::designerapp
