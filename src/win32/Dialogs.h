#pragma once

#include "platform/Dialogs.h"

namespace orvane::win32 {

/// The shell's browse dialog. The other two need windows of the component's own: here they behave
/// like dialogs that cannot be shown.
class Dialogs : public orvane::Dialogs {
 public:
  bool ShowCopyTo(WindowHandle owner, CopyToModel& model) override;
  bool ShowProgress(WindowHandle owner, ProgressModel& model) override;
  Picked Browse(WindowHandle owner, const ItemIdList& root, const std::wstring& title,
                std::uint32_t flags, BrowseModel& model) override;
};

}  // namespace orvane::win32
