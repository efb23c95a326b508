#pragma once

#include <functional>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "designer/Edit.h"
#include "designerapp/ItemPictures.h"
#include "designerapp/Program.h"

namespace orvane::designerapp {

/// The tree of the menu. It asks for texts and pictures as it shows them, and for the items of a
/// popup when that opens. Several items are selected at once by marks; the one with the focus
/// counts too.
class TreePane : public designer::EditListener {
 public:
  explicit TreePane(Program& program) : m_program(program) {}

  void Create(HWND parent);
  HWND Handle() const { return m_tree; }
  /// Pictures and heights for a resolution.
  void Resolution(UINT dpi);

  /// The background that the settings ask for.
  void ShowBackground();

  /// From now on with the shell's icons: the first one takes the shell a while.
  void ShowIcons();

  /// Shows the whole menu anew.
  void ShowAll();
  void Select(designer::MenuItem* item);  // null: nothing
  void Select(const designer::Items& items);
  designer::MenuItem* Current() const;
  designer::Items Selection() const;
  /// Adds the current item to the marked ones or takes it away.
  void ToggleMark();
  void ClearMarks();
  void Rename();

  std::function<void()> onSelect;
  std::function<void(designer::MenuItem&, const std::wstring&)> onRename;
  std::function<void(designer::MenuItem&)> onDrag;

  LRESULT Notify(NMHDR& header);
  /// The item at a point of the screen; null beside them.
  designer::MenuItem* ItemAt(POINT screen) const;
  std::optional<designer::Place> DropPlace(POINT screen) const;
  void ShowDropPlace(const std::optional<designer::Place>& place);

  void Inserted(designer::MenuItem& item) override;
  void Removing(designer::MenuItem& item) override;
  void Changed(designer::MenuItem& item) override;
  void Clearing() override;

 private:
  HTREEITEM HandleOf(const designer::MenuItem* item) const;
  bool IsFilled(const designer::MenuItem& item) const;
  HTREEITEM Add(designer::MenuItem& item, HTREEITEM after);
  void Fill(designer::MenuItem& parent);
  void Reveal(designer::MenuItem& item);
  void Refresh(const designer::MenuItem& item, UINT mask);
  void Answer(TVITEMW& asked);
  LRESULT Paint(NMTVCUSTOMDRAW& draw) const;
  void Clicked();

  Program& m_program;
  HWND m_tree = nullptr;
  std::optional<ItemPictures> m_pictures;
  std::unordered_map<const designer::MenuItem*, HTREEITEM> m_handles;
  std::unordered_set<const designer::MenuItem*> m_filled;
  std::unordered_set<designer::MenuItem*> m_marked;
  bool m_withIcons = false;
  std::wstring m_text;  // of the item the tree asks for
};

}  // namespace orvane::designerapp
