#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/Handles.h"
#include "platform/ItemIdList.h"

namespace orvane {

/// What the Copy To dialog shows and does, whoever draws its window.
class CopyToModel {
 public:
  virtual ~CopyToModel() = default;

  virtual std::wstring Title() = 0;
  virtual std::wstring InitialDestination() = 0;

  /// Captions of the recently used destinations, one a slot; an unused slot cannot be chosen.
  struct Slot {
    std::wstring caption;
    bool used = false;
  };
  virtual std::vector<Slot> Slots() = 0;

  /// Whether the background picture is to be painted.
  virtual bool HasBackground() = 0;

  /// What the destination field holds after a click on a used slot (0-based).
  virtual std::wstring Choose(std::size_t slot) = 0;

  /// The browse button: what the destination field holds afterwards. `dialog` is the dialog's own
  /// window, to own what is shown.
  virtual std::wstring Browse(WindowHandle dialog, const std::wstring& destination) = 0;

  /// The OK button: true ends the dialog; otherwise the model has told the user why not.
  virtual bool Accept(const std::wstring& destination) = 0;
};

/// The progress window as the work behind it sees it. Both methods let the window's messages run,
/// the second not more often than needed for a prompt Cancel: it may be called for every name.
class ProgressView {
 public:
  virtual ~ProgressView() = default;

  virtual void ShowFolder(const std::wstring& folder) = 0;
  virtual void ShowCount(std::size_t names) = 0;
};

/// What the progress window shows, and the work it shows the progress of.
class ProgressModel {
 public:
  virtual ~ProgressModel() = default;

  virtual std::wstring Title() = 0;    // of the window
  virtual std::wstring Caption() = 0;  // of the progress area

  /// Does the work, on the window's thread, once the window is there; the window closes when it
  /// returns. Throws nothing.
  virtual void Run(ProgressView& view) noexcept = 0;

  /// The Cancel button and the close box, while Run is inside the view: Run is to return soon.
  virtual void Cancel() = 0;
};

/// An open browse dialog as its model sees it.
class BrowseWindow {
 public:
  virtual ~BrowseWindow() = default;

  virtual void Select(const std::wstring& path) = 0;     // BFFM_SETSELECTION, by path
  virtual void Expand(const std::wstring& path) = 0;     // BFFM_SETEXPANDED
  virtual void SetStatus(const std::wstring& text) = 0;  // BFFM_SETSTATUSTEXT
};

/// What happens in a browse dialog while it is open (BFFM_INITIALIZED, _SELCHANGED,
/// _VALIDATEFAILED).
class BrowseModel {
 public:
  virtual ~BrowseModel() = default;

  virtual void Opened(BrowseWindow& window) = 0;
  virtual void Selected(BrowseWindow& window, const ItemIdList& item) = 0;

  /// The user typed a name that is not valid: true keeps the dialog open.
  virtual bool InvalidEntry() = 0;
};

/// The modal dialogs. The calling thread waits in them, its messages running.
class Dialogs {
 public:
  struct Picked {
    ItemIdList item;  // none when the user cancelled
    std::wstring displayName;
  };

  virtual ~Dialogs() = default;

  /// True when the model accepted a destination; false when the user gave up or the dialog cannot
  /// be shown.
  virtual bool ShowCopyTo(WindowHandle owner, CopyToModel& model) = 0;

  /// Shows the window, runs the model's work once and closes the window. False when it cannot be
  /// shown; the work has then not begun.
  virtual bool ShowProgress(WindowHandle owner, ProgressModel& model) = 0;

  /// The shell's browse dialog (SHBrowseForFolder) from `root` down, with its BIF_* flags.
  virtual Picked Browse(WindowHandle owner, const ItemIdList& root, const std::wstring& title,
                        std::uint32_t flags, BrowseModel& model) = 0;
};

}  // namespace orvane
