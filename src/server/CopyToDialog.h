#pragma once

#include <memory>
#include <type_traits>

#include "platform/Dialogs.h"
#include "windowing/DialogWindow.h"

namespace orvane::server {

/// The window of Copy To and Move To.
class CopyToDialog : private windowing::DialogWindow {
 public:
  CopyToDialog(HINSTANCE module, CopyToModel& model);

  /// True when the model accepted a destination.
  bool Ask(HWND owner) { return Show(owner).value_or(FALSE) != FALSE; }

 private:
  struct IconCloser {
    void operator()(HICON icon) const { DestroyIcon(icon); }
  };
  struct BitmapCloser {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
  };
  using UniqueIcon = std::unique_ptr<std::remove_pointer_t<HICON>, IconCloser>;
  using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapCloser>;

  void Opened() override;
  void Rescaled() override { LoadPictures(); }
  void Command(int control, int notification) override;
  INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) override;

  void LoadPictures();
  void ShowSlots();
  void Accept();
  void PaintSlot(const DRAWITEMSTRUCT& item) const;
  bool PaintBackground(HDC context) const;
  std::wstring Destination() const;
  void Destination(const std::wstring& text);

  CopyToModel& m_model;
  UniqueIcon m_folder;
  UniqueBitmap m_background;  // null: plain
};

}  // namespace orvane::server
