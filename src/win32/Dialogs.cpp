#include "win32/Dialogs.h"

#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"

namespace orvane::win32 {
namespace {

class Window : public BrowseWindow {
 public:
  explicit Window(HWND window) : m_window(window) {}

  void Select(const std::wstring& path) override { Send(BFFM_SETSELECTIONW, TRUE, path); }
  void Expand(const std::wstring& path) override { Send(BFFM_SETEXPANDED, TRUE, path); }
  void SetStatus(const std::wstring& text) override { Send(BFFM_SETSTATUSTEXTW, 0, text); }

 private:
  void Send(UINT message, WPARAM wParam, const std::wstring& text) {
    SendMessageW(m_window, message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
  }

  HWND m_window;
};

int CALLBACK OnBrowse(HWND dialog, UINT message, LPARAM parameter, LPARAM data) noexcept try {
  auto& model = *reinterpret_cast<BrowseModel*>(data);
  Window window(dialog);
  switch (message) {
    case BFFM_INITIALIZED:
      model.Opened(window);
      break;
    case BFFM_SELCHANGED:
      model.Selected(window, CopyOf(reinterpret_cast<PCIDLIST_ABSOLUTE>(parameter)));
      break;
    case BFFM_VALIDATEFAILEDA:
    case BFFM_VALIDATEFAILEDW:
      return model.InvalidEntry() ? 1 : 0;
    default:
      break;
  }
  return 0;
} catch (...) {
  return 0;  // the dialog goes on without what failed
}

}  // namespace

bool Dialogs::ShowCopyTo(WindowHandle, CopyToModel&) {
  return false;
}

bool Dialogs::ShowProgress(WindowHandle, ProgressModel&) {
  return false;
}

Dialogs::Picked Dialogs::Browse(WindowHandle owner, const ItemIdList& root,
                                const std::wstring& title, std::uint32_t flags,
                                BrowseModel& model) {
  wchar_t displayName[MAX_PATH] = L"";
  BROWSEINFOW info{};
  info.hwndOwner = ToNative<HWND>(owner);
  info.pidlRoot = ToNativeList(root);
  info.pszDisplayName = displayName;
  info.lpszTitle = title.c_str();
  info.ulFlags = flags;
  info.lpfn = OnBrowse;
  info.lParam = reinterpret_cast<LPARAM>(&model);
  const ShellItemIdList list(SHBrowseForFolderW(&info));
  if (!list.get()) return {};
  return {CopyOf(list.get()), displayName};
}

}  // namespace orvane::win32
