#pragma once

#include <windows.h>

#include "win32/Dialogs.h"

namespace orvane::server {

/// The modal dialogs with windows of the component's own.
class Dialogs : public win32::Dialogs {
 public:
  /// `module` has the dialogs' templates and pictures.
  explicit Dialogs(HINSTANCE module) : m_module(module) {}

  bool ShowCopyTo(WindowHandle owner, CopyToModel& model) override;
  bool ShowProgress(WindowHandle owner, ProgressModel& model) override;

 private:
  HINSTANCE m_module;
};

}  // namespace orvane::server
