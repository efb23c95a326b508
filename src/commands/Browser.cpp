#include "commands/Browser.h"

#include "commands/Warning.h"
#include "menudata/ShellPaths.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t Desktop = 0;  // CSIDL_DESKTOP

// BIF_*: only folders with a path, status text, edit box, validation, new style.
constexpr std::uint32_t FolderFlags = 0x75;
// BIF_*: files too, addresses too, new style, validation.
constexpr std::uint32_t FileFlags = 0x40E0;

/// What a browse dialog shows first, and what it says of the selected item.
class BrowseCallback : public BrowseModel {
 public:
  BrowseCallback(Shell& shell, MessageBoxes& boxes, const std::wstring& startFolder, bool forFile)
      : m_shell(shell), m_boxes(boxes), m_startFolder(startFolder), m_forFile(forFile) {}

  void Opened(BrowseWindow& window) override {
    window.Select(m_startFolder);
    if (!m_forFile) return;
    Log(L"Expanding");
    window.Expand(m_startFolder);
  }

  void Selected(BrowseWindow& window, const ItemIdList& item) override {
    const std::wstring path = m_shell.Path(item);
    if (!path.empty()) window.SetStatus(path);
  }

  bool InvalidEntry() override {
    Warn(m_boxes, L"Invalid entry specified!");
    return true;
  }

 private:
  Shell& m_shell;
  MessageBoxes& m_boxes;
  const std::wstring& m_startFolder;
  bool m_forFile;
};

void LogInputs(const std::wstring& szTitle, const std::wstring& szStartFolder,
               std::uint32_t lFlags) {
  Log(L"szTitle=", szTitle, L"  szStartFolder=", szStartFolder, L"  lFlags=",
      Hex(static_cast<std::int32_t>(lFlags)));
}

}  // namespace

std::wstring Browser::BrowseForFolder(WindowHandle window, const std::wstring& szTitle,
                                      const std::wstring& szStartFolder, std::wstring* displayName,
                                      std::uint32_t lFlags) {
  TraceScope scope(L"BrowseForFolder");
  LogInputs(szTitle, szStartFolder, lFlags);
  try {
    BrowseCallback callback(m_shell, m_boxes, szStartFolder, false);
    const ItemIdList root = m_shell.SpecialFolder(window, Desktop);
    const Dialogs::Picked picked =
        m_dialogs.Browse(window, root, szTitle, lFlags | FolderFlags, callback);
    std::wstring path = picked.item ? PidlToPath(m_shell, picked.item) : std::wstring();
    if (path.empty()) return szStartFolder;
    if (displayName) *displayName = picked.displayName;
    return path;
  } catch (...) {
    scope.Caught();
    return {};
  }
}

ItemIdList Browser::BrowseForFile(WindowHandle window, const std::wstring& szTitle,
                                  const std::wstring& szStartFolder, std::uint32_t lFlags) {
  TraceScope scope(L"BrowseForFile");
  LogInputs(szTitle, szStartFolder, lFlags);
  BrowseCallback callback(m_shell, m_boxes, szStartFolder, true);
  const ItemIdList root = m_shell.SpecialFolder(window, Desktop);
  return m_dialogs.Browse(window, root, szTitle, lFlags | FileFlags, callback).item;
}

}  // namespace orvane
