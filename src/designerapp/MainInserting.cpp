#include <commctrl.h>
#include <shellapi.h>

#include "designerapp/CommandIds.h"
#include "designerapp/FileDialogs.h"
#include "designerapp/MainWindow.h"
#include "designerapp/ProgramDialog.h"
#include "designerapp/ShortcutTarget.h"
#include "menudata/ShellPaths.h"

// How items come into the menu of the main window: from its Insert menu, dropped on it, and dragged
// from another place in it.

namespace orvane::designerapp {
namespace {

using designer::MenuItem;
using Data = clsOrvaneData;

Data Record(std::int32_t type, const std::wstring& caption, const std::wstring& location = {}) {
  Data data;
  data.m_lType = type;
  data.Location(location);
  data.Caption(caption);
  return data;
}

/// What a dropped or chosen thing becomes: a folder or a file, named as the shell names it.
Data RecordOf(const std::wstring& path, const Platform& platform) {
  const bool isFolder = IsDirectory(platform.files, path, Patience(1000));
  std::wstring name = GetDisplayName(platform.shell, path);
  if (name.empty()) name = path;
  return Record(isFolder ? Data::TypeFolder : Data::TypeFile, name, path);
}

std::vector<std::wstring> PathsOf(WPARAM drop) {
  const auto handle = reinterpret_cast<HDROP>(drop);
  std::vector<std::wstring> paths;
  const UINT count = DragQueryFileW(handle, 0xFFFFFFFF, nullptr, 0);
  for (UINT i = 0; i < count; ++i) {
    std::wstring path(DragQueryFileW(handle, i, nullptr, 0) + 1, L'\0');
    DragQueryFileW(handle, i, path.data(), static_cast<UINT>(path.size()));
    path.pop_back();
    paths.push_back(std::move(path));
  }
  DragFinish(handle);
  return paths;
}

}  // namespace

bool MainWindow::InsertCommand(int id) {
  switch (id) {
    case ID_INSERT_POPUP:
      Insert(Record(Data::TypePopupMenu, L"New popup"));
      return true;
    case ID_INSERT_SEPARATOR:
      Insert(Record(Data::TypeSeparator, {}));
      return true;
    case ID_INSERT_FOLDER:
      InsertFolder(Data::TypeFolder, false);
      return true;
    case ID_INSERT_DYNAMIC:
      InsertFolder(Data::TypeDynamicFolder, false);
      return true;
    case ID_INSERT_COPY:
    case ID_INSERT_MOVE:
      InsertFolder(Data::TypeCopyToX, id == ID_INSERT_MOVE);
      return true;
    case ID_INSERT_SPECIAL: {
      constexpr std::int32_t Documents = 5;
      Data data = Record(Data::TypeFolder, L"Documents");
      data.m_lOptions = Data::OptionsCSIDL;
      data.FolderCSIDL(Documents);
      Insert(std::move(data));
      return true;
    }
    case ID_INSERT_FILE:
      InsertFile();
      return true;
    case ID_INSERT_PROGRAM:
      InsertProgram();
      return true;
    case ID_INSERT_TASK: {
      Data data = Record(Data::TypeSelectionTask, L"New task");
      data.m_lSelection_Options = Data::SelectionOptions_ShowAlways | Data::SelectionOptions_QIS;
      data.m_szSelection_CmdSuffix = L" ";
      data.m_szSelection_FileSuffix = L"\\n";
      data.m_szSelection_Parms = L"[orv_selection]";
      Insert(std::move(data));
      return true;
    }
    case ID_INSERT_ACTION:
      Insert(Record(Data::TypeCustomAction, L"New action"));
      return true;
    default:
      return false;
  }
}

void MainWindow::Insert(clsOrvaneData data) {
  designer::Document& document = m_program.document;
  const designer::Place place = PlaceFor(document.Top(), m_tree.Current());
  m_tree.Select(designer::Insert(document.Edits(), std::move(data), place));
  ShowCurrent();
  EditsHappened();
  SetFocus(m_tree.Handle());
}

void MainWindow::InsertFile() {
  const std::wstring path = AskFile(Handle(), Files::Any, {});
  if (!path.empty()) Insert(RecordOf(path, m_program.platform));
}

void MainWindow::InsertProgram() {
  const auto program = ProgramDialog(m_program).Ask(Handle());
  if (program) Insert(Record(Data::TypeFile, program->name, program->path));
}

void MainWindow::InsertFolder(std::int32_t type, bool move) {
  const std::wstring path = AskFolder(Handle(), {});
  if (path.empty()) return;
  std::wstring name = GetDisplayName(m_program.platform.shell, path);
  Data data = Record(type, name.empty() ? path : name, path);
  if (move) data.m_lCopyToX_Options = Data::CopyToXOptions_Move;
  Insert(std::move(data));
}

/// With Ctrl a shortcut becomes what it points at; else it stays itself, and the Edit menu has the
/// command for later.
void MainWindow::DroppedFiles(WPARAM drop) {
  const bool followsShortcuts = GetKeyState(VK_CONTROL) < 0;
  POINT at{};
  GetCursorPos(&at);
  designer::Document& document = m_program.document;
  std::vector<clsOrvaneData> records;
  for (const std::wstring& path : PathsOf(drop)) {
    const bool follows = followsShortcuts && designer::IsShortcut(path);
    const std::wstring target = follows ? TargetOfShortcut(path) : std::wstring();
    records.push_back(RecordOf(target.empty() ? path : target, m_program.platform));
  }
  const designer::Place place =
      m_tree.DropPlace(at).value_or(PlaceFor(document.Top(), m_tree.Current()));
  m_tree.Select(designer::Insert(document.Edits(), std::move(records), place));
  ShowCurrent();
  EditsHappened();
}

void MainWindow::BeginDrag(MenuItem& item) {
  if (item.data.IsTypeRoot()) return;
  const designer::Items selection = m_tree.Selection();
  if (std::ranges::find(selection, &item) == selection.end()) {
    m_tree.ClearMarks();
    m_tree.Select(&item);
  }
  m_dragging = true;
  SetCapture(Handle());
}

void MainWindow::Drag() {
  POINT at{};
  GetCursorPos(&at);
  auto place = m_tree.DropPlace(at);
  if (place && !CanMoveTo(m_program.document.Top(), m_tree.Selection(), *place)) place.reset();
  m_tree.ShowDropPlace(place);
  SetCursor(LoadCursorW(nullptr, place ? IDC_ARROW : IDC_NO));
}

void MainWindow::EndDrag(bool drop) {
  if (!m_dragging) return;
  m_dragging = false;
  m_tree.ShowDropPlace(std::nullopt);
  ReleaseCapture();
  POINT at{};
  GetCursorPos(&at);
  const auto place = m_tree.DropPlace(at);
  if (!drop || !place) return;
  designer::Document& document = m_program.document;
  m_tree.Select(MoveTo(document.Edits(), document.Top(), m_tree.Selection(), *place));
  ShowCurrent();
  EditsHappened();
}

}  // namespace orvane::designerapp
