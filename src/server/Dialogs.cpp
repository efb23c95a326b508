#include "server/Dialogs.h"

#include "server/CopyToDialog.h"
#include "server/ProgressDialog.h"
#include "win32/NativeHandles.h"

namespace orvane::server {

bool Dialogs::ShowCopyTo(WindowHandle owner, CopyToModel& model) {
  return CopyToDialog(m_module, model).Ask(win32::ToNative<HWND>(owner));
}

void Dialogs::ShowProgress(WindowHandle owner, ProgressModel& model) {
  if (!ProgressDialog(m_module, model).Run(win32::ToNative<HWND>(owner)))
    win32::Dialogs::ShowProgress(owner, model);
}

}  // namespace orvane::server
