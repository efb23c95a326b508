#pragma once

#include <cstdint>
#include <string>

#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Shell.h"
#include "support/clsTrace.h"

namespace orvane {

/// The texts that are made of a menu item record: its entry in a recently-used list, its caption,
/// its help text, its one-line summary.
class clsOrvaneDataTools {
 public:
  /// `debug` is asked for its scrambling only and need not be switched on.
  clsOrvaneDataTools(const clsOptions& options, clsTrace& debug, Shell& shell);

  /// The enciphered list entry of an item, and back.
  std::wstring CreateHistoryMRU(const clsOrvaneData& item) const;
  void BreakdownHistoryMRU(const std::wstring& text, clsOrvaneData& item) const;

  /// The caption as the menu shows it; `trim` is set for the kinds whose caption is the user's.
  std::wstring GetMenuCaption(const clsOrvaneData& item, bool& trim) const;
  /// Cuts the text after its "&1 " to `maximum` characters and "..."; 0 or less never cuts.
  static std::wstring TrimCaption(const std::wstring& caption, std::int32_t maximum);
  /// The text for the status bar; empty for what has none.
  std::wstring GetExplorerDescription(const clsOrvaneData& item, const std::wstring& currentFile,
                                      const std::wstring& currentFolder) const;
  std::wstring GetDesignerDescription(const clsOrvaneData& item) const;
};

}  // namespace orvane
