#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace orvane::windowing {

/// The scale of a dialog, and its font in that scale.
class DialogScale {
 public:
  /// WM_INITDIALOG. From here on the system leaves the dialog's scaling to this.
  void Start(HWND dialog);

  /// WM_DPICHANGED: gives all controls the font of that many dots per inch.
  void Change(int dpi);

  int Dpi() const { return m_dpi; }
  int StartDpi() const { return m_startDpi; }

 private:
  struct FontCloser {
    void operator()(HFONT font) const { DeleteObject(font); }
  };
  using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, FontCloser>;

  HWND m_dialog = nullptr;
  int m_startDpi = USER_DEFAULT_SCREEN_DPI;
  int m_dpi = USER_DEFAULT_SCREEN_DPI;
  LOGFONTW m_startFont{};
  UniqueFont m_font;  // null: the dialog's own
};

}  // namespace orvane::windowing
