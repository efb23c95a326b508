#include "designerapp/ListsDialog.h"

#include <windowsx.h>

#include <numeric>

#include "designerapp/CommandIds.h"

namespace orvane::designerapp {
namespace {

using Layout = windowing::DialogLayout;
constexpr unsigned Along = Layout::Left | Layout::Right;
constexpr Layout::Anchor Placing[] = {
    {IDC_LISTS_WHICH, Layout::Right},
    {IDC_LISTS_ENTRIES, Layout::Right | Layout::Bottom},
    {IDC_LISTS_REMOVE, Along},
    {IDC_LISTS_CLEAR, Along},
    {IDCANCEL, Along | Layout::Top | Layout::Bottom},
};

}  // namespace

ListsDialog::ListsDialog(Program& program)
    : DialogWindow(program.instance, IDD_LISTS, Placing),
      m_lists(designer::RecentList::All(program.platform.registry, program.globals.tools)) {}

void ListsDialog::Opened() {
  for (const designer::RecentList& list : m_lists)
    ComboBox_AddString(Control(IDC_LISTS_WHICH), list.Name());
  ComboBox_SetCurSel(Control(IDC_LISTS_WHICH), 0);
  ShowEntries();
}

designer::RecentList& ListsDialog::Chosen() {
  return m_lists.at(static_cast<std::size_t>(ComboBox_GetCurSel(Control(IDC_LISTS_WHICH))));
}

void ListsDialog::ShowEntries() {
  const HWND entries = Control(IDC_LISTS_ENTRIES);
  ListBox_ResetContent(entries);
  for (const std::wstring& entry : Chosen().Read()) ListBox_AddString(entries, entry.c_str());
  ListBox_SetSel(entries, TRUE, 0);
  const bool some = ListBox_GetCount(entries) > 0;
  if (!some) SetFocus(Control(IDC_LISTS_WHICH));  // a disabled button would keep the keys
  for (const int button : {IDC_LISTS_REMOVE, IDC_LISTS_CLEAR}) EnableWindow(Control(button), some);
}

void ListsDialog::Forget(bool all) {
  const HWND entries = Control(IDC_LISTS_ENTRIES);
  std::vector<int> places(static_cast<std::size_t>(ListBox_GetCount(entries)));
  std::iota(places.begin(), places.end(), 0);
  if (!all) std::erase_if(places, [&](int place) { return !ListBox_GetSel(entries, place); });
  Chosen().Forget({places.begin(), places.end()});
  ShowEntries();
}

void ListsDialog::Command(int control, int notification) {
  if (control == IDCANCEL)
    End(FALSE);
  else if (control == IDC_LISTS_WHICH && notification == CBN_SELCHANGE)
    ShowEntries();
  else if (control == IDC_LISTS_REMOVE || control == IDC_LISTS_CLEAR)
    Forget(control == IDC_LISTS_CLEAR);
}

}  // namespace orvane::designerapp
