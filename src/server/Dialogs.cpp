#include "server/Dialogs.h"

#include "server/CopyToDialog.h"
#include "server/ProgressDialog.h"
#include "win32/NativeHandles.h"

namespace orvane::server {

bool Dialogs::ShowCopyTo(WindowHandle owner, CopyToModel& model) {
  return CopyToDialog(m_module, model).Ask(win32::ToNative<HWND>(owner));
}

bool Dialogs::ShowProgress(WindowHandle owner, ProgressModel& model) {
  return ProgressDialog(m_module, model).Run(win32::ToNative<HWND>(owner));
}

}  // namespace orvane::server
