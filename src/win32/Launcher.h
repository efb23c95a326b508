#pragma once

#include "platform/Launcher.h"

namespace orvane::win32 {

/// The shell's ways to open things. The calling thread has initialised COM.
class Launcher : public orvane::Launcher {
 public:
  std::int32_t Open(const Execution& execution) override;
  bool OpenEx(const Execution& execution) override;
  bool Start(const std::wstring& program, const std::wstring& commandLine,
             const std::wstring& directory) override;
  std::intptr_t ShellBrowser(WindowHandle window) override;
  std::int32_t BrowseObject(std::intptr_t shellBrowser, const ItemIdList& item) override;
  void BrowsingDone(WindowHandle window) override;
};

}  // namespace orvane::win32
