#include "designerapp/ActionsDialog.h"

#include <algorithm>

#include "designer/WindowTest.h"
#include "designerapp/ActionTestDialog.h"
#include "designerapp/ListColumns.h"
#include "designerapp/Scale.h"
#include "designerapp/Window.h"
#include "win32/NativeHandles.h"

namespace orvane::designerapp {
namespace {

using windowing::DialogLayout;

constexpr Column ActionColumns[] = {
    {L"No.", 36}, {L"Name", 120}, {L"State", 54}, {L"Description", 160}};
constexpr Column FindingColumns[] = {
    {L"Action", 90}, {L"Field", 70}, {L"What", 260}, {L"Remedy", 260}};

constexpr unsigned Wider = DialogLayout::Right;
constexpr unsigned Below = DialogLayout::Top | DialogLayout::Bottom;
constexpr unsigned InCorner = Below | DialogLayout::Left | DialogLayout::Right;
constexpr DialogLayout::Anchor Layout[] = {{IDC_ACTIONS_LIST, DialogLayout::Bottom},
                                           {IDC_ACTIONS_NEW, Below},
                                           {IDC_ACTIONS_DUPLICATE, Below},
                                           {IDC_ACTIONS_DELETE, Below},
                                           {IDC_ACTIONS_UP, Below},
                                           {IDC_ACTIONS_DOWN, Below},
                                           {IDC_ACTION_NAME, Wider},
                                           {IDC_ACTION_DESCRIPTION, Wider},
                                           {IDC_ACTION_EXE, Wider},
                                           {IDC_ACTION_CAPTION, Wider},
                                           {IDC_ACTION_CLASS, Wider},
                                           {IDC_ACTION_SCRIPT, Wider},
                                           {IDC_ACTIONS_FINDINGS, Wider | DialogLayout::Bottom},
                                           {IDC_ACTIONS_STATUS, Below | Wider},
                                           {IDC_ACTIONS_SAVE, InCorner},
                                           {IDCANCEL, InCorner}};

/// A text of the action and the control that shows it.
struct TextControl {
  int control;
  const wchar_t* key;  // in the file
  std::wstring CustomAction::*text;
};
constexpr TextControl Texts[] = {
    {IDC_ACTION_NAME, L"", &CustomAction::m_szId},
    {IDC_ACTION_DESCRIPTION, L"Description", &CustomAction::m_szDescription},
    {IDC_ACTION_EXE, L"Exe", &CustomAction::m_szExe},
    {IDC_ACTION_CAPTION, L"Caption", &CustomAction::m_szCaption},
    {IDC_ACTION_CLASS, L"Class", &CustomAction::m_szClass},
    {IDC_ACTION_SCRIPT, L"Actions", &CustomAction::m_szActions}};

/// The list of modes of each criterion.
constexpr int ModeControls[] = {IDC_ACTION_EXE_MODE, IDC_ACTION_CAPTION_MODE,
                                IDC_ACTION_CLASS_MODE};

int ControlOf(const ActionFinding& finding) {
  for (std::size_t i = 0; i < std::size(Criteria); ++i) {
    if (finding.field == Criteria[i].modeKey) return ModeControls[i];
  }
  const auto text = std::ranges::find(Texts, finding.field, &TextControl::key);
  return text == std::end(Texts) ? IDC_ACTION_NAME : text->control;
}

void Select(HWND list, std::size_t row) {
  const int index = static_cast<int>(row);
  ListView_SetItemState(list, index, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  ListView_EnsureVisible(list, index, FALSE);
}

}  // namespace

ActionsDialog::ActionsDialog(Program& program)
    : DialogWindow(program.instance, IDD_ACTIONS, Layout),
      m_program(program),
      m_list(program.platform.files, program.globals.actionServices),
      m_picker(program) {
  m_picker.onMove = [this](HWND window) { ShowPicked(window); };
  m_picker.onPick = [this](HWND window) { Picked(window); };
}

void ActionsDialog::Ask(HWND owner) {
  m_list.Open(m_program.globals.options.m_szShellCustomActionsFile);
  Show(owner);
}

void ActionsDialog::Opened() {
  AddColumns(Control(IDC_ACTIONS_LIST), ActionColumns);
  AddColumns(Control(IDC_ACTIONS_FINDINGS), FindingColumns);
  Rescaled();
  for (const int control : ModeControls) {
    for (const std::int32_t mode : designer::Modes)
      SendMessageW(Control(control), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(designer::ModeText(mode).c_str()));
  }
  for (const TextControl& text : Texts) SendMessageW(Control(text.control), EM_SETLIMITTEXT, 0, 0);
  m_picker.Attach(Control(IDC_ACTION_PICK));
  ShowList(0);
}

void ActionsDialog::Rescaled() {
  ScaleColumns(Control(IDC_ACTIONS_LIST), ActionColumns, DpiOf(Window()));
  ScaleColumns(Control(IDC_ACTIONS_FINDINGS), FindingColumns, DpiOf(Window()));
}

/// Shows the list anew, and of it the action at that place.
void ActionsDialog::ShowList(std::size_t place) {
  m_filling = true;  // the list tells of rows that come and go as of choices
  m_place = place;
  const HWND list = Control(IDC_ACTIONS_LIST);
  ListView_SetItemCountEx(list, static_cast<int>(m_list.Actions().size()), 0);
  if (HasAction()) Select(list, place);
  InvalidateRect(list, nullptr, TRUE);
  m_filling = false;
  ShowAction();
}

void ActionsDialog::ShowAction() {
  m_filling = true;
  const CustomAction action = HasAction() ? Current() : CustomAction();
  for (const TextControl& text : Texts) {
    if (TextOf(Control(text.control)) != action.*text.text)
      SetWindowTextW(Control(text.control), (action.*text.text).c_str());
  }
  for (std::size_t i = 0; i < std::size(Criteria); ++i) {
    const auto mode = std::ranges::find(designer::Modes, action.*Criteria[i].mode);
    const bool isKnown = mode != std::end(designer::Modes);
    SendMessageW(Control(ModeControls[i]), CB_SETCURSEL,
                 isKnown ? static_cast<WPARAM>(mode - designer::Modes) : ~WPARAM{0}, 0);
  }
  CheckDlgButton(Window(), IDC_ACTION_ENABLED, action.IsOptionEnabled());
  CheckDlgButton(Window(), IDC_ACTION_WINDOW, action.m_lType == CustomAction::TypeWindow);
  m_filling = false;
  Enable();
  ShowFindings();
}

void ActionsDialog::Enable() {
  for (int control = IDC_ACTION_NAME; control <= IDC_ACTION_TEST; ++control)
    EnableWindow(Control(control), HasAction());
  for (const int control :
       {IDC_ACTIONS_DUPLICATE, IDC_ACTIONS_DELETE, IDC_ACTIONS_UP, IDC_ACTIONS_DOWN})
    EnableWindow(Control(control), HasAction());
}

/// What stands in the fields; a mode that has no name stays.
CustomAction ActionsDialog::Typed() const {
  CustomAction action = Current();
  for (const TextControl& text : Texts) action.*text.text = TextOf(Control(text.control));
  for (std::size_t i = 0; i < std::size(Criteria); ++i) {
    const LRESULT chosen = SendMessageW(Control(ModeControls[i]), CB_GETCURSEL, 0, 0);
    if (chosen >= 0) action.*Criteria[i].mode = designer::Modes[chosen];
  }
  const auto isChecked = [&](int control) { return IsDlgButtonChecked(Window(), control) != 0; };
  if (isChecked(IDC_ACTION_WINDOW))
    action.m_lType = CustomAction::TypeWindow;
  else if (action.m_lType == CustomAction::TypeWindow)
    action.m_lType = CustomAction::TypeGeneral;
  action.m_lOptions = isChecked(IDC_ACTION_ENABLED)
                          ? action.m_lOptions | CustomAction::OptionEnabled
                          : action.m_lOptions & ~CustomAction::OptionEnabled;
  return action;
}

void ActionsDialog::Edited() {
  if (m_filling || !HasAction()) return;
  m_list.Change(m_place, Typed());
  ListView_RedrawItems(Control(IDC_ACTIONS_LIST), static_cast<int>(m_place),
                       static_cast<int>(m_place));
  ShowFindings();
}

/// Those of the chosen action come first.
void ActionsDialog::ShowFindings() {
  m_findings = m_list.Findings();
  const std::wstring name = HasAction() ? Current().m_szId : std::wstring();
  std::ranges::stable_partition(
      m_findings, [&](const ActionFinding& finding) { return finding.action == name; });
  const HWND list = Control(IDC_ACTIONS_FINDINGS);
  ListView_SetItemCountEx(list, static_cast<int>(m_findings.size()), LVSICF_NOSCROLL);
  InvalidateRect(list, nullptr, TRUE);
  const std::wstring file = m_list.Path().substr(m_list.Path().find_last_of(L'\\') + 1);
  SetWindowTextW(Window(), ((m_list.IsDirty() ? L"*" : L"") + file + L" - Custom Actions").c_str());
  ShowPicked(nullptr);
}

void ActionsDialog::GoTo(const ActionFinding& finding) {
  const auto& actions = m_list.Actions();
  const auto action = std::ranges::find(actions, finding.action, &CustomAction::m_szId);
  if (action == actions.end()) return;
  const int control = ControlOf(finding);
  const auto place = finding.place, end = place + finding.length;
  ShowList(static_cast<std::size_t>(action - actions.begin()));
  Focus(control);
  if (end > place) SendMessageW(Control(control), EM_SETSEL, place, static_cast<LPARAM>(end));
}

void ActionsDialog::GoToChosenFinding() {
  const int row = ListView_GetNextItem(Control(IDC_ACTIONS_FINDINGS), -1, LVNI_SELECTED);
  if (row < 0 || static_cast<std::size_t>(row) >= m_findings.size()) return;
  const ActionFinding finding = m_findings[static_cast<std::size_t>(row)];
  GoTo(finding);
}

void ActionsDialog::Focus(int control) const {
  SendMessageW(Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(control)), TRUE);
}

/// Of a part of a window counts the window: that is what the user sees as one.
void ActionsDialog::Picked(HWND window) {
  CustomAction action = Current();
  const ActionServices& services = m_program.globals.actionServices;
  designer::TakeWindow(action, services.windows, services.process,
                       win32::FromNative<WindowHandle>(GetAncestor(window, GA_ROOT)));
  m_list.Change(m_place, std::move(action));
  ShowList(m_place);
}

void ActionsDialog::ShowPicked(HWND window) {
  const ActionServices& services = m_program.globals.actionServices;
  const std::wstring text =
      window
          ? designer::DescribeWindow(services.windows, services.process,
                                     win32::FromNative<WindowHandle>(GetAncestor(window, GA_ROOT)))
          : m_list.Path();
  if (TextOf(Control(IDC_ACTIONS_STATUS)) != text)
    SetWindowTextW(Control(IDC_ACTIONS_STATUS), text.c_str());
}

int ActionsDialog::AskUser(const wchar_t* text, UINT style) const {
  return MessageBoxW(Window(), (m_list.Path() + L"\n\n" + text).c_str(), L"Custom Actions", style);
}

bool ActionsDialog::Save() {
  if (m_list.ChangedMeanwhile() &&
      AskUser(L"Another program has changed the file. Overwrite what it wrote?",
              MB_YESNO | MB_ICONEXCLAMATION | MB_DEFBUTTON2) != IDYES)
    return false;
  m_list.Save();
  ShowList(m_place);
  return true;
}

/// Offers to save; false when the user wants to go on, or has to, as it failed.
bool ActionsDialog::MayLeave() try {
  if (!m_list.IsDirty()) return true;
  const int answer = AskUser(L"Save the changes?", MB_YESNOCANCEL | MB_ICONEXCLAMATION);
  return answer == IDNO || (answer == IDYES && Save());
} catch (...) {
  TellFailure(Window());
  return false;
}

void ActionsDialog::ListCommand(int control) {
  switch (control) {
    case IDC_ACTIONS_NEW:
      ShowList(m_list.Add());
      return Focus(IDC_ACTION_NAME);
    case IDC_ACTIONS_DUPLICATE:
      ShowList(m_list.Duplicate(m_place));
      return Focus(IDC_ACTION_NAME);
    case IDC_ACTIONS_DELETE:
      ShowList(m_list.Remove(m_place));
      return Focus(HasAction() ? IDC_ACTIONS_LIST : IDC_ACTIONS_NEW);
    default:
      return ShowList(m_list.Move(m_place, control == IDC_ACTIONS_UP));
  }
}

/// What fails is told here: the window stays, with all that was typed.
void ActionsDialog::Command(int control, int notification) try {
  switch (control) {
    case IDC_ACTIONS_NEW:
    case IDC_ACTIONS_DUPLICATE:
    case IDC_ACTIONS_DELETE:
    case IDC_ACTIONS_UP:
    case IDC_ACTIONS_DOWN:
      return ListCommand(control);
    case IDC_ACTION_PICK:
      return m_picker.Choose();
    case IDC_ACTION_TEST:
      return ActionTestDialog(m_program, Current()).Ask(Window());
    case IDC_ACTIONS_SAVE:
      Save();
      return;
    case IDOK:  // Enter
      if (GetFocus() == Control(IDC_ACTIONS_FINDINGS)) GoToChosenFinding();
      return;
    case IDCANCEL:
      if (!m_picker.Cancel() && MayLeave()) End(0);
      return;
    default:
      if (notification == EN_CHANGE || notification == CBN_SELCHANGE || notification == BN_CLICKED)
        Edited();
  }
} catch (...) {
  TellFailure(Window());
}

std::wstring ActionsDialog::CellOfAction(std::size_t row, int column) const {
  const CustomAction& action = m_list.Actions()[row];
  switch (column) {
    case 0:
      return std::to_wstring(row + 1);
    case 1:
      return action.m_szId;
    case 2:
      return !action.IsOptionEnabled()                    ? L"off"
             : action.m_lType == CustomAction::TypeWindow ? L"window"
                                                          : L"general";
    default:
      return action.m_szDescription;
  }
}

std::wstring ActionsDialog::CellOfFinding(std::size_t row, int column) const {
  const ActionFinding& finding = m_findings[row];
  switch (column) {
    case 0:
      return finding.action;
    case 1:
      return designer::FieldLabel(finding.field);
    case 2:
      return finding.text;
    default:
      return finding.remedy;
  }
}

void ActionsDialog::Answer(UINT_PTR list, LVITEMW& asked) {
  const bool isAction = list == IDC_ACTIONS_LIST;
  const auto row = static_cast<std::size_t>(asked.iItem);
  const std::size_t count = isAction ? m_list.Actions().size() : m_findings.size();
  if (!(asked.mask & LVIF_TEXT) || row >= count) return;
  m_text = isAction ? CellOfAction(row, asked.iSubItem) : CellOfFinding(row, asked.iSubItem);
  asked.pszText = m_text.data();
}

void ActionsDialog::Notify(NMHDR& header) {
  if (header.code == LVN_GETDISPINFOW) {
    Answer(header.idFrom, reinterpret_cast<NMLVDISPINFOW&>(header).item);
  } else if (header.idFrom == IDC_ACTIONS_FINDINGS) {
    if (header.code == NM_CLICK) GoToChosenFinding();
  } else if (header.idFrom == IDC_ACTIONS_LIST && header.code == LVN_ITEMCHANGED && !m_filling) {
    const auto& change = reinterpret_cast<NMLISTVIEW&>(header);
    if (!(change.uNewState & LVIS_SELECTED) || change.iItem < 0) return;
    m_place = static_cast<std::size_t>(change.iItem);
    ShowAction();
  }
}

INT_PTR ActionsDialog::Other(UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_NOTIFY)
    Notify(*reinterpret_cast<NMHDR*>(lParam));
  else if (message == WM_QUERYENDSESSION)
    SetWindowLongPtrW(Window(), DWLP_MSGRESULT, MayLeave());
  else
    return FALSE;
  return TRUE;
}

}  // namespace orvane::designerapp
