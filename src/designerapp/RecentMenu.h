#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "menudata/MenuControl.h"

namespace orvane::designerapp {

/// The File menu as a recently-used list sees it: entries with text keys.
class RecentMenu : public MenuControl {
 public:
  /// The window's menu bar, which is kept.
  void Attach(HMENU fileMenu);

  std::wstring TypeName() override { return L"SmartItem"; }
  std::int32_t SubItemCount() override { return static_cast<std::int32_t>(m_keys.size()); }
  std::wstring SubItemKey(std::int32_t position) override;
  void RemoveSubItem(const std::wstring& key) override;
  void InsertSubItem(const std::wstring& key, const std::wstring& caption,
                     const std::wstring& before) override;

 private:
  UINT PositionOf(const std::wstring& key) const;

  HMENU m_menu = nullptr;
  std::vector<std::wstring> m_keys;  // of the entries, in their order; empty: has none
};

}  // namespace orvane::designerapp
