#include <commctrl.h>
#include <shellapi.h>
#include <windowsx.h>

#include "designerapp/ActionsDialog.h"
#include "designerapp/CommandIds.h"
#include "designerapp/FileDialogs.h"
#include "designerapp/FindDialog.h"
#include "designerapp/ItemClipboard.h"
#include "designerapp/ListsDialog.h"
#include "designerapp/MainWindow.h"
#include "designerapp/SettingsDialog.h"
#include "designerapp/ShortcutTarget.h"
#include "menudata/ShellPaths.h"
#include "platform/Clipboard.h"
#include "platform/SystemInfo.h"
#include "support/Utf8.h"

// What the menu bar of the main window does.

namespace orvane::designerapp {
namespace {

using designer::MenuItem;

void Enable(HMENU menu, UINT id, bool on) {
  EnableMenuItem(menu, id, MF_BYCOMMAND | (on ? MF_ENABLED : MF_GRAYED));
}

bool IsOpened(HWND owner, const std::wstring& file, const std::wstring& arguments) {
  constexpr INT_PTR LastError = 32;
  const HINSTANCE result =
      ShellExecuteW(owner, L"open", file.c_str(), arguments.c_str(), nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > LastError;
}

}  // namespace

bool MainWindow::Command(int id) {
  return FileCommand(id) || EditCommand(id) || InsertCommand(id) || ViewCommand(id) ||
         ToolsCommand(id) || HelpCommand(id);
}

bool MainWindow::FileCommand(int id) {
  bool isOther = false;
  if (id >= ID_FILE_RECENT && id < ID_FILE_RECENT + RECENT_COUNT) {
    if (m_files.Open(m_program.recent.File(id - ID_FILE_RECENT + 1))) ShowDocument();
    return true;
  }
  switch (id) {
    case ID_FILE_NEW:
      isOther = m_files.New();
      break;
    case ID_FILE_OPEN:
      isOther = m_files.Open();
      break;
    case ID_FILE_IMPORT:
      isOther = m_files.Import();
      break;
    case ID_FILE_SAVE:
      if (m_files.Save()) ShowTitle();
      return true;
    case ID_FILE_SAVE_AS:
      if (m_files.SaveAs()) ShowTitle();
      return true;
    case ID_FILE_EXPORT:
      m_files.Export();
      return true;
    case ID_FILE_EXIT:
      PostMessageW(Handle(), WM_CLOSE, 0, 0);
      return true;
    default:
      return false;
  }
  if (isOther) ShowDocument();
  return true;
}

bool MainWindow::EditCommand(int id) {
  designer::Document& document = m_program.document;
  designer::History& edits = document.Edits();
  designer::Items after;
  switch (id) {
    case ID_EDIT_UNDO:
    case ID_EDIT_REDO:
      if (MenuItem* shown = id == ID_EDIT_UNDO ? edits.Undo() : edits.Redo()) after = {shown};
      break;
    case ID_EDIT_CUT:
      Copy();
      [[fallthrough]];
    case ID_EDIT_DELETE:
      after = Remove(edits, document.Top(), m_tree.Selection());
      break;
    case ID_EDIT_COPY:
      Copy();
      return true;
    case ID_EDIT_PASTE:
      Paste();
      return true;
    case ID_EDIT_DUPLICATE:
      after = Duplicate(edits, document.Top(), m_tree.Selection());
      break;
    case ID_EDIT_RENAME:
      m_tree.Rename();
      return true;
    case ID_EDIT_MARK:
      m_tree.ToggleMark();
      return true;
    case ID_EDIT_UP:
      Move(designer::Direction::Up);
      return true;
    case ID_EDIT_DOWN:
      Move(designer::Direction::Down);
      return true;
    case ID_EDIT_IN:
      Move(designer::Direction::In);
      return true;
    case ID_EDIT_OUT:
      Move(designer::Direction::Out);
      return true;
    case ID_EDIT_TARGET:
      after = ReplaceShortcuts(edits, m_tree.Selection(), TargetOfShortcut);
      if (after.empty()) return Status(L"No selected item opens a shortcut to a file."), true;
      break;
    case ID_EDIT_FIND:
    case ID_EDIT_FIND_NEXT:
      Find(id == ID_EDIT_FIND_NEXT);
      return true;
    default:
      return false;
  }
  m_tree.Select(after);
  ShowCurrent();
  EditsHappened();
  return true;
}

bool MainWindow::ViewCommand(int id) {
  switch (id) {
    case ID_VIEW_PREVIEW: {
      RECT tree{};
      GetWindowRect(m_tree.Handle(), &tree);
      Preview({tree.left + 40, tree.top + 40});
      return true;
    }
    case ID_VIEW_SAMPLE_NOTHING:
      m_program.sample.names.clear();
      break;
    case ID_VIEW_SAMPLE_FILES: {
      const std::vector<std::wstring> paths = AskFiles(Handle());
      if (paths.empty()) return true;
      m_program.sample = designer::SampleOf(paths);
      break;
    }
    case ID_VIEW_SAMPLE_FOLDER: {
      const std::wstring path = AskFolder(Handle(), m_program.sample.folder);
      if (path.empty()) return true;
      m_program.sample = designer::SampleOf({path});
      break;
    }
    case ID_VIEW_CHECK:
      m_findings.Check(true);
      Status(std::to_wstring(m_findings.Count()) + L" findings");
      return true;
    case ID_VIEW_RIGHT:
    case ID_VIEW_LEFT:
      m_dividers.Push(Dividers::Divider::Upright, id == ID_VIEW_LEFT);
      Arrange();
      return true;
    case ID_VIEW_DOWN:
    case ID_VIEW_UP:
      m_dividers.Push(Dividers::Divider::Level, id == ID_VIEW_UP);
      Arrange();
      return true;
    case ID_VIEW_NEXT_PART:
      NextPart();
      return true;
    default:
      return false;
  }
  m_properties.ShowTask();
  Status(L"The preview is for " + m_program.sample.Text() + L'.');
  return true;
}

bool MainWindow::ToolsCommand(int id) {
  if (id == ID_TOOLS_LISTS)
    ListsDialog(m_program).Show(Handle());
  else if (id == ID_TOOLS_ACTIONS)
    ActionsDialog(m_program).Ask(Handle());
  else if (id != ID_TOOLS_SETTINGS)
    return false;
  else if (SettingsDialog(m_program).Ask(Handle()))
    m_tree.ShowBackground();
  return true;
}

bool MainWindow::HelpCommand(int id) {
  if (id == ID_HELP_GUIDE)
    Guide();
  else if (id == ID_HELP_ABOUT)
    About();
  else
    return false;
  return true;
}

void MainWindow::UpdateMenu(HMENU menu) {
  designer::History& edits = m_program.document.Edits();
  const bool selected = !m_tree.Selection().empty();
  Enable(menu, ID_EDIT_UNDO, edits.NextUndo() != nullptr);
  Enable(menu, ID_EDIT_REDO, edits.NextRedo() != nullptr);
  Enable(menu, ID_EDIT_PASTE, IsClipboardFormatAvailable(CF_UNICODETEXT));
  for (const UINT id :
       {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_DELETE, ID_EDIT_DUPLICATE, ID_EDIT_RENAME, ID_EDIT_MARK,
        ID_EDIT_UP, ID_EDIT_DOWN, ID_EDIT_IN, ID_EDIT_OUT, ID_EDIT_TARGET})
    Enable(menu, id, selected);
  Enable(menu, ID_EDIT_FIND_NEXT, !m_searched.empty());
}

void MainWindow::Copy() {
  const designer::Items items = m_tree.Selection();
  if (items.empty()) return;
  const std::string text = CopyText(m_program.document.Top(), items);
  if (!m_program.platform.clipboard.SetText(FromUtf8(text).value_or(L"")))
    throw Error(Error::Internal, L"Another program keeps the clipboard.");
}

void MainWindow::Paste() {
  const auto text = ClipboardText(Handle());
  if (!text) return;
  designer::Document& document = m_program.document;
  const designer::Place place = PlaceFor(document.Top(), m_tree.Current());
  m_tree.Select(designer::Paste(document.Edits(), ToUtf8(*text), place));
  EditsHappened();
}

void MainWindow::Move(designer::Direction direction) {
  designer::Document& document = m_program.document;
  m_tree.Select(designer::Move(document.Edits(), document.Top(), m_tree.Selection(), direction));
  ShowCurrent();
  EditsHappened();
}

void MainWindow::Find(bool again) {
  if (!again || m_searched.empty()) {
    const auto text = FindDialog(m_program.instance).Ask(Handle(), m_searched);
    if (!text) return;
    m_searched = *text;
  }
  MenuItem* found = FindText(m_program.document.Top(), m_searched, m_tree.Current());
  if (!found) return Status(L"No item has the text \"" + m_searched + L"\".");
  m_tree.ClearMarks();
  m_tree.Select(found);
}

/// On the background of the tree it is the preview itself.
void MainWindow::ContextMenu(LPARAM at) {
  POINT point{GET_X_LPARAM(at), GET_Y_LPARAM(at)};
  const bool byKey = at == -1;
  MenuItem* item = byKey ? m_tree.Current() : m_tree.ItemAt(point);
  if (!item) return Preview(point);
  if (byKey) {
    RECT tree{};
    GetWindowRect(m_tree.Handle(), &tree);
    point = {tree.left + 40, tree.top + 40};
  } else {
    m_tree.Select(item);
  }
  const HMENU edit = GetSubMenu(GetMenu(Handle()), 1);
  TrackPopupMenu(edit, TPM_RIGHTBUTTON, point.x, point.y, 0, Handle(), nullptr);
}

void MainWindow::Preview(POINT at) {
  const std::wstring outcome = m_preview.Show(Handle(), at);
  ShowCurrent();
  if (!outcome.empty())
    MessageBoxW(Handle(), outcome.c_str(), L"Choosing the entry does this",
                MB_OK | MB_ICONINFORMATION);
}

void MainWindow::NextPart() {
  const HWND focus = GetFocus();
  if (focus == m_tree.Handle())
    m_properties.FocusField({});
  else if (IsChild(m_properties.Handle(), focus))
    SetFocus(m_findings.Handle());
  else
    SetFocus(m_tree.Handle());
}

void MainWindow::About() {
  wchar_t version[128] = L"";
  LoadStringW(m_program.instance, IDS_VERSION, version, 128);
  MessageBoxW(Handle(),
              (std::wstring(L"Orvane Designer ") + version + L"\n\nCopyright (c) Tarnwick").c_str(),
              L"Orvane Designer", MB_OK | MB_ICONINFORMATION);
}

/// A machine without a program for the guide's kind of file has the Notepad.
void MainWindow::Guide() {
  for (const std::wstring& folder : {m_program.folder, m_program.platform.system.ProgramFolder()}) {
    for (const wchar_t* place : {L"\\designer.md", L"\\docs\\designer.md"}) {
      const std::wstring path = folder + place;
      if (!FileExists(m_program.platform.files, path)) continue;
      if (IsOpened(Handle(), path, {})) return;
      const std::wstring editor = m_program.platform.system.SystemFolder() + L"\\notepad.exe";
      if (IsOpened(Handle(), editor, L'"' + path + L'"')) return;
    }
  }
  throw Error(Error::InvalidArgument,
              L"The guide, designer.md, is not in " + m_program.folder + L'.');
}

}  // namespace orvane::designerapp
