#include "designerapp/ActionTestDialog.h"

#include <algorithm>

#include "designerapp/ListColumns.h"
#include "designerapp/Scale.h"
#include "win32/NativeHandles.h"

namespace orvane::designerapp {
namespace {

using windowing::DialogLayout;

constexpr Column Columns[] = {
    {L"Window", 130}, {L"Result", 140}, {L"Program", 160}, {L"Caption", 130}, {L"Class", 130}};

constexpr unsigned Below = DialogLayout::Top | DialogLayout::Bottom;
constexpr DialogLayout::Anchor Layout[] = {
    {IDC_TEST_ACTION, DialogLayout::Right},
    {IDC_TEST_WINDOWS, DialogLayout::Right | DialogLayout::Bottom},
    {IDC_TEST_AGAIN, Below},
    {IDC_TEST_PICK, Below},
    {IDCANCEL, Below | DialogLayout::Left | DialogLayout::Right}};

}  // namespace

ActionTestDialog::ActionTestDialog(Program& program, const CustomAction& action)
    : DialogWindow(program.instance, IDD_ACTION_TEST, Layout),
      m_program(program),
      m_action(action),
      m_picker(program) {
  m_picker.onMove = [](HWND) {};
  m_picker.onPick = [this](HWND window) {
    m_tests.insert(m_tests.begin(), Test(window));
    ShowTests();
  };
}

void ActionTestDialog::Opened() {
  AddColumns(Control(IDC_TEST_WINDOWS), Columns);
  Rescaled();
  m_picker.Attach(Control(IDC_TEST_PICK));
  const std::wstring note =
      m_action.m_lType != CustomAction::TypeWindow ? L" is not played into windows"
      : m_action.IsOptionEnabled()                 ? L" would be played into the windows that match"
                                                   : L" is not enabled; the windows that match";
  SetWindowTextW(Control(IDC_TEST_ACTION), (L"\"" + m_action.m_szId + L"\"" + note + L":").c_str());
  Look();
}

void ActionTestDialog::Rescaled() {
  ScaleColumns(Control(IDC_TEST_WINDOWS), Columns, DpiOf(Window()));
}

designer::WindowTest ActionTestDialog::Test(HWND window) {
  const ActionServices& services = m_program.globals.actionServices;
  return designer::TestWindow(m_action, services.windows, services.process,
                              win32::FromNative<WindowHandle>(window));
}

/// Those that match come first.
void ActionTestDialog::Look() {
  m_tests.clear();
  for (const HWND window : OpenWindows(Window())) m_tests.push_back(Test(window));
  std::ranges::stable_sort(m_tests, std::ranges::greater(), &designer::WindowTest::matches);
  ShowTests();
}

void ActionTestDialog::ShowTests() {
  const HWND list = Control(IDC_TEST_WINDOWS);
  ListView_SetItemCountEx(list, static_cast<int>(m_tests.size()), 0);
  ListView_SetItemState(list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
}

void ActionTestDialog::Answer(LVITEMW& asked) {
  const auto row = static_cast<std::size_t>(asked.iItem);
  if (!(asked.mask & LVIF_TEXT) || row >= m_tests.size()) return;
  const designer::WindowTest& test = m_tests[row];
  m_text = asked.iSubItem == 0   ? test.caption
           : asked.iSubItem == 1 ? test.outcome
                                 : test.criteria[static_cast<std::size_t>(asked.iSubItem - 2)];
  asked.pszText = m_text.data();
}

void ActionTestDialog::Command(int control, int) {
  if (control == IDCANCEL) {
    if (!m_picker.Cancel()) End(0);
  } else if (control == IDC_TEST_AGAIN) {
    Look();
  } else if (control == IDC_TEST_PICK) {
    m_picker.Choose();
  }
}

INT_PTR ActionTestDialog::Other(UINT message, WPARAM, LPARAM lParam) {
  if (message != WM_NOTIFY) return FALSE;
  if (reinterpret_cast<NMHDR*>(lParam)->code == LVN_GETDISPINFOW)
    Answer(reinterpret_cast<NMLVDISPINFOW*>(lParam)->item);
  return TRUE;
}

}  // namespace orvane::designerapp
