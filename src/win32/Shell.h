#pragma once

#include "platform/Shell.h"

namespace orvane::win32 {

/// The shell's name space. The calling thread has initialised COM.
class Shell : public orvane::Shell {
 public:
  std::wstring Path(const ItemIdList& item) override;
  ItemIdList Parse(WindowHandle owner, const std::wstring& path) override;
  ItemIdList SpecialFolder(WindowHandle owner, std::int32_t csidl) override;
  std::wstring DisplayName(const ItemIdList& item) override;
  std::wstring DisplayName(const std::wstring& path) override;
};

}  // namespace orvane::win32
