#include "designerapp/ListColumns.h"

#include <commctrl.h>

#include "designerapp/Scale.h"

namespace orvane::designerapp {

void AddColumns(HWND list, std::span<const Column> columns) {
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP);
  for (int i = 0; const Column& column : columns) {
    LVCOLUMNW native{};
    native.mask = LVCF_TEXT | LVCF_WIDTH;
    native.pszText = const_cast<wchar_t*>(column.title);
    native.cx = column.width;
    ListView_InsertColumn(list, i++, &native);
  }
}

void ScaleColumns(HWND list, std::span<const Column> columns, UINT dpi) {
  for (int i = 0; const Column& column : columns)
    ListView_SetColumnWidth(list, i++, Scaled(column.width, dpi));
}

}  // namespace orvane::designerapp
