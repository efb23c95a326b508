#include "designerapp/FindingsPane.h"

#include "designerapp/CommandIds.h"
#include "designerapp/ListColumns.h"
#include "menudoc/CheckMenu.h"
#include "support/Utf8.h"

namespace orvane::designerapp {
namespace {

constexpr Column Columns[] = {{L"Finding", 70}, {L"Item", 170}, {L"What", 380}, {L"Remedy", 380}};

}  // namespace

void FindingsPane::Create(HWND parent) {
  m_list = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"Findings",
                           WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA |
                               LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
                           0, 0, 0, 0, parent, reinterpret_cast<HMENU>(IDC_FINDINGS),
                           m_program.instance, nullptr);
  AddColumns(m_list, Columns);
}

void FindingsPane::Resolution(UINT dpi) {
  ScaleColumns(m_list, Columns, dpi);
}

void FindingsPane::Check(bool places) {
  const MenuSurroundings surroundings{m_program.globals.codePage,
                                      places ? &m_program.platform.files : nullptr};
  m_findings = CheckMenu(m_program.document.AsDefinition(), surroundings);
  ListView_SetItemCountEx(m_list, static_cast<int>(m_findings.size()), LVSICF_NOSCROLL);
  InvalidateRect(m_list, nullptr, TRUE);
}

void FindingsPane::Answer(LVITEMW& asked) {
  const auto index = static_cast<std::size_t>(asked.iItem);
  if (!(asked.mask & LVIF_TEXT) || index >= m_findings.size()) return;
  const Finding& finding = m_findings[index];
  const designer::MenuItem* item = m_program.document.ItemAt(finding.item);
  switch (asked.iSubItem) {
    case 0:
      m_text = finding.severity == Finding::Severity::Error ? L"Error" : L"Warning";
      break;
    case 1:
      m_text = item ? m_program.globals.tools.GetDesignerDescription(item->data) : L"";
      break;
    case 2:
      m_text = FromUtf8(finding.text).value_or(L"");
      break;
    default:
      m_text = FromUtf8(finding.remedy).value_or(L"");
  }
  asked.pszText = m_text.data();
}

LRESULT FindingsPane::Notify(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) {
    Answer(reinterpret_cast<NMLVDISPINFOW&>(header).item);
  } else if (header.code == NM_CLICK || header.code == LVN_ITEMACTIVATE) {
    const int chosen = reinterpret_cast<NMITEMACTIVATE&>(header).iItem;
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= m_findings.size() || !onChoose) return 0;
    const Finding& finding = m_findings[static_cast<std::size_t>(chosen)];
    onChoose(m_program.document.ItemAt(finding.item), finding.field);
  }
  return 0;
}

}  // namespace orvane::designerapp
