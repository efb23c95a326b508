#include "designerapp/TreePane.h"

#include <windowsx.h>

#include <utility>

#include "designerapp/CommandIds.h"
#include "designerapp/Scale.h"
#include "designerapp/Window.h"

namespace orvane::designerapp {
namespace {

using designer::MenuItem;

MenuItem* ItemOf(LPARAM parameter) {
  return reinterpret_cast<MenuItem*>(parameter);
}

MenuItem* ItemOf(HWND tree, HTREEITEM handle) {
  TVITEMW item{};
  item.mask = TVIF_PARAM;
  item.hItem = handle;
  return handle && TreeView_GetItem(tree, &item) ? ItemOf(item.lParam) : nullptr;
}

std::wstring CaptionOf(const clsOrvaneData& data) {
  if (data.IsTypeSeparator()) return L"\x2014\x2014\x2014\x2014\x2014\x2014";
  const std::wstring caption(data.Caption());
  return caption.empty() ? L"(no caption)" : caption;
}

COLORREF Tint() {
  constexpr int Share = 16;
  const COLORREF ground = GetSysColor(COLOR_WINDOW), touch = GetSysColor(COLOR_HIGHLIGHT);
  const auto mixed = [](int a, int b) { return (a * (Share - 1) + b) / Share; };
  return RGB(mixed(GetRValue(ground), GetRValue(touch)), mixed(GetGValue(ground), GetGValue(touch)),
             mixed(GetBValue(ground), GetBValue(touch)));
}

}  // namespace

void TreePane::Create(HWND parent) {
  m_tree = CreateWindowExW(WS_EX_CLIENTEDGE, WC_TREEVIEWW, L"Menu",
                           WS_CHILD | WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES |
                               TVS_LINESATROOT | TVS_EDITLABELS | TVS_SHOWSELALWAYS | TVS_INFOTIP,
                           0, 0, 0, 0, parent, reinterpret_cast<HMENU>(IDC_TREE),
                           m_program.instance, nullptr);
}

void TreePane::Resolution(UINT dpi) {
  ItemPictures pictures(m_program.platform, Scaled(16, dpi));
  TreeView_SetImageList(m_tree, pictures.List(), TVSIL_NORMAL);
  m_pictures.reset();
  m_pictures.emplace(std::move(pictures));
  ShowBackground();
}

/// A touch of the system's own colour of what is selected, so that it suits every scheme of colours
/// and the texts stay readable; nothing where the user needs contrast.
void TreePane::ShowBackground() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  const bool isColoured = m_program.globals.options.m_bGeneralShowBackground &&
                          !(contrast.dwFlags & HCF_HIGHCONTRASTON);
  TreeView_SetBkColor(m_tree, isColoured ? Tint() : CLR_NONE);
}

void TreePane::ShowIcons() {
  if (std::exchange(m_withIcons, true)) return;
  InvalidateRect(m_tree, nullptr, FALSE);
}

void TreePane::Clearing() {
  m_marked.clear();
  TreeView_SelectItem(m_tree, nullptr);
  TreeView_DeleteAllItems(m_tree);
  m_handles.clear();
  m_filled.clear();
}

void TreePane::ShowAll() {
  SetWindowRedraw(m_tree, FALSE);
  Fill(m_program.document.Top());
  for (const auto& item : m_program.document.Top().children) {
    Fill(*item);
    TreeView_Expand(m_tree, HandleOf(item.get()), TVE_EXPAND);
  }
  SetWindowRedraw(m_tree, TRUE);
  TreeView_SelectItem(m_tree, TreeView_GetRoot(m_tree));
}

HTREEITEM TreePane::HandleOf(const MenuItem* item) const {
  const auto found = m_handles.find(item);
  return found == m_handles.end() ? nullptr : found->second;
}

bool TreePane::IsFilled(const MenuItem& item) const {
  return m_filled.contains(&item);
}

HTREEITEM TreePane::Add(MenuItem& item, HTREEITEM after) {
  TVINSERTSTRUCTW insertion{};
  const HTREEITEM parent = HandleOf(item.parent);
  insertion.hParent = parent ? parent : TVI_ROOT;
  insertion.hInsertAfter = after;
  insertion.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
  insertion.item.pszText = LPSTR_TEXTCALLBACKW;
  insertion.item.lParam = reinterpret_cast<LPARAM>(&item);
  insertion.item.iImage = I_IMAGECALLBACK;
  insertion.item.iSelectedImage = I_IMAGECALLBACK;
  insertion.item.cChildren = I_CHILDRENCALLBACK;
  const HTREEITEM handle = TreeView_InsertItem(m_tree, &insertion);
  m_handles[&item] = handle;
  return handle;
}

void TreePane::Fill(MenuItem& parent) {
  if (!m_filled.insert(&parent).second) return;
  HTREEITEM last = TVI_FIRST;
  for (const MenuItem::Owner& child : parent.children) last = Add(*child, last);
}

/// Opens everything above the item.
void TreePane::Reveal(MenuItem& item) {
  if (!item.parent) return;
  Reveal(*item.parent);
  Fill(*item.parent);
  if (const HTREEITEM parent = HandleOf(item.parent)) TreeView_Expand(m_tree, parent, TVE_EXPAND);
}

void TreePane::Select(MenuItem* item) {
  if (item) Reveal(*item);
  TreeView_SelectItem(m_tree, item ? HandleOf(item) : nullptr);
}

void TreePane::Select(const designer::Items& items) {
  if (items.empty()) return;
  ClearMarks();
  for (MenuItem* item : items) Reveal(*item);
  Select(items.back());
  if (items.size() > 1) m_marked.insert(items.begin(), items.end());
  InvalidateRect(m_tree, nullptr, FALSE);
}

MenuItem* TreePane::Current() const {
  return ItemOf(m_tree, TreeView_GetSelection(m_tree));
}

designer::Items TreePane::Selection() const {
  designer::Items items(m_marked.begin(), m_marked.end());
  if (MenuItem* current = Current(); current && !m_marked.contains(current))
    items.push_back(current);
  return items;
}

void TreePane::ToggleMark() {
  MenuItem* current = Current();
  if (!current) return;
  if (!m_marked.erase(current)) m_marked.insert(current);
  InvalidateRect(m_tree, nullptr, FALSE);
}

void TreePane::ClearMarks() {
  if (m_marked.empty()) return;
  m_marked.clear();
  InvalidateRect(m_tree, nullptr, FALSE);
}

void TreePane::Rename() {
  SetFocus(m_tree);
  if (const HTREEITEM item = TreeView_GetSelection(m_tree)) TreeView_EditLabel(m_tree, item);
}

void TreePane::Answer(TVITEMW& asked) {
  const MenuItem& item = *ItemOf(asked.lParam);
  if (asked.mask & TVIF_TEXT) {
    m_text = CaptionOf(item.data);
    asked.pszText = m_text.data();
  }
  if (asked.mask & (TVIF_IMAGE | TVIF_SELECTEDIMAGE))
    asked.iImage = asked.iSelectedImage = m_pictures->IndexOf(item.data, m_withIcons);
  if (asked.mask & TVIF_CHILDREN) asked.cChildren = item.children.empty() ? 0 : 1;
}

/// Marked items look like the selected one.
LRESULT TreePane::Paint(NMTVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  if (m_marked.contains(ItemOf(draw.nmcd.lItemlParam))) {
    draw.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
    draw.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  }
  return CDRF_DODEFAULT;
}

/// With Ctrl a click marks, with Shift it marks up to there; else it ends all marks.
void TreePane::Clicked() {
  const DWORD at = GetMessagePos();
  MenuItem* item = ItemAt({GET_X_LPARAM(at), GET_Y_LPARAM(at)});
  MenuItem* current = Current();
  if (item && current && GetKeyState(VK_CONTROL) < 0) {
    if (m_marked.empty()) m_marked.insert(current);
    if (item != current && !m_marked.erase(item)) m_marked.insert(item);
  } else if (item && current && GetKeyState(VK_SHIFT) < 0 && item->parent == current->parent) {
    const auto [low, high] = std::minmax(item->Index(), current->Index());
    for (std::size_t i = low; i <= high; ++i) m_marked.insert(item->parent->children[i].get());
  } else {
    m_marked.clear();
  }
  InvalidateRect(m_tree, nullptr, FALSE);
}

LRESULT TreePane::Notify(NMHDR& header) {
  switch (header.code) {
    case TVN_GETDISPINFOW:
      Answer(reinterpret_cast<NMTVDISPINFOW&>(header).item);
      return 0;
    case TVN_ITEMEXPANDINGW:
      Fill(*ItemOf(reinterpret_cast<NMTREEVIEWW&>(header).itemNew.lParam));
      return FALSE;
    case TVN_SELCHANGEDW:
      if (onSelect) onSelect();
      return 0;
    case TVN_BEGINLABELEDITW: {
      const MenuItem& item = *ItemOf(reinterpret_cast<NMTVDISPINFOW&>(header).item.lParam);
      if (item.data.IsTypeSeparator()) return TRUE;
      SetWindowTextW(TreeView_GetEditControl(m_tree), std::wstring(item.data.Caption()).c_str());
      return FALSE;
    }
    case TVN_ENDLABELEDITW: {
      const TVITEMW& edited = reinterpret_cast<NMTVDISPINFOW&>(header).item;
      if (edited.pszText && onRename) onRename(*ItemOf(edited.lParam), edited.pszText);
      return FALSE;  // the text is asked for
    }
    case TVN_BEGINDRAGW:
      if (onDrag) onDrag(*ItemOf(reinterpret_cast<NMTREEVIEWW&>(header).itemNew.lParam));
      return 0;
    case TVN_GETINFOTIPW: {
      auto& tip = reinterpret_cast<NMTVGETINFOTIPW&>(header);
      const std::wstring text =
          m_program.globals.tools.GetDesignerDescription(ItemOf(tip.lParam)->data);
      lstrcpynW(tip.pszText, text.c_str(), tip.cchTextMax);
      return 0;
    }
    case TVN_DELETEITEMW: {
      const MenuItem* item = ItemOf(reinterpret_cast<NMTREEVIEWW&>(header).itemOld.lParam);
      m_handles.erase(item);
      m_filled.erase(item);
      return 0;
    }
    case NM_CLICK:
      Clicked();
      return 0;
    case NM_CUSTOMDRAW:
      return Paint(reinterpret_cast<NMTVCUSTOMDRAW&>(header));
    default:
      return 0;
  }
}

MenuItem* TreePane::ItemAt(POINT screen) const {
  TVHITTESTINFO hit{};
  hit.pt = screen;
  ScreenToClient(m_tree, &hit.pt);
  const HTREEITEM handle = TreeView_HitTest(m_tree, &hit);
  return hit.flags & (TVHT_ONITEM | TVHT_ONITEMINDENT | TVHT_ONITEMBUTTON | TVHT_ONITEMRIGHT)
             ? ItemOf(m_tree, handle)
             : nullptr;
}

/// Into what holds items when the pointer is on its middle, else before or behind the item.
std::optional<designer::Place> TreePane::DropPlace(POINT screen) const {
  MenuItem* item = ItemAt(screen);
  if (!item) return std::nullopt;
  RECT rect{};
  TreeView_GetItemRect(m_tree, HandleOf(item), &rect, FALSE);
  ScreenToClient(m_tree, &screen);
  const int quarter = (rect.bottom - rect.top) / 4;
  const bool holds = item->HoldsItems();
  if (item->data.IsTypeRoot() ||
      (holds && screen.y >= rect.top + quarter && screen.y < rect.bottom - quarter))
    return designer::Place{item, item->children.size()};
  const bool behind = screen.y >= (rect.top + rect.bottom) / 2;
  return designer::Place{item->parent, item->Index() + (behind ? 1U : 0U)};
}

void TreePane::ShowDropPlace(const std::optional<designer::Place>& place) {
  const MenuItem* before = nullptr;
  const MenuItem* into = nullptr;
  bool behind = false;
  if (place) {
    const auto& children = place->parent->children;
    if (place->index < children.size()) {
      before = children[place->index].get();
    } else if (children.empty() || !IsFilled(*place->parent)) {
      into = place->parent;
    } else {
      before = children.back().get();
      behind = true;
    }
  }
  TreeView_SelectDropTarget(m_tree, into ? HandleOf(into) : nullptr);
  TreeView_SetInsertMark(m_tree, before ? HandleOf(before) : nullptr, behind);
}

/// The tree asks anew for what is in the mask.
void TreePane::Refresh(const MenuItem& item, UINT mask) {
  const HTREEITEM handle = HandleOf(&item);
  if (!handle) return;
  TVITEMW change{};
  change.mask = mask;
  change.hItem = handle;
  change.pszText = LPSTR_TEXTCALLBACKW;
  change.iImage = change.iSelectedImage = I_IMAGECALLBACK;
  change.cChildren = I_CHILDRENCALLBACK;
  TreeView_SetItem(m_tree, &change);
}

void TreePane::Inserted(MenuItem& item) {
  if (IsFilled(*item.parent)) {
    const std::size_t index = item.Index();
    const HTREEITEM after =
        index == 0 ? TVI_FIRST : HandleOf(item.parent->children[index - 1].get());
    Add(item, after);
  }
  Refresh(*item.parent, TVIF_CHILDREN);
}

void TreePane::Removing(MenuItem& item) {
  m_marked.erase(&item);
  if (const HTREEITEM handle = HandleOf(&item)) TreeView_DeleteItem(m_tree, handle);
}

void TreePane::Changed(MenuItem& item) {
  Refresh(item, TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE);
}

}  // namespace orvane::designerapp
