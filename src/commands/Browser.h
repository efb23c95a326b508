#pragma once

#include <cstdint>
#include <string>

#include "platform/Dialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"

namespace orvane {

/// The shell's browse dialog, with the whole desktop to browse in.
class Browser {
 public:
  Browser(Dialogs& dialogs, Shell& shell, MessageBoxes& boxes)
      : m_dialogs(dialogs), m_shell(shell), m_boxes(boxes) {}

  /// The path of the folder that the user picked, its display name in `displayName`. Gives back
  /// szStartFolder, and leaves `displayName` alone, when he picked none or one without a path.
  std::wstring BrowseForFolder(WindowHandle window, const std::wstring& szTitle,
                               const std::wstring& szStartFolder,
                               std::wstring* displayName = nullptr, std::uint32_t lFlags = 0);

  /// What the user picked, a file or a folder; none when he gave up. `lFlags`: more BIF_* flags.
  ItemIdList BrowseForFile(WindowHandle window, const std::wstring& szTitle,
                           const std::wstring& szStartFolder, std::uint32_t lFlags);

 private:
  Dialogs& m_dialogs;
  Shell& m_shell;
  MessageBoxes& m_boxes;
};

}  // namespace orvane
