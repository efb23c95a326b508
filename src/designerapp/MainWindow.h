#pragma once

#include <optional>
#include <string>

#include "designerapp/Dividers.h"
#include "designerapp/DocumentFiles.h"
#include "designerapp/FindingsPane.h"
#include "designerapp/PreviewMenu.h"
#include "designerapp/PropertyPane.h"
#include "designerapp/RecentMenu.h"
#include "designerapp/TreePane.h"
#include "designerapp/Window.h"

namespace orvane::designerapp {

/// The designer's window: tree, properties, findings, status bar and menu bar.
class MainWindow : public Window, private designer::EditListener {
 public:
  explicit MainWindow(Program& program);
  ~MainWindow() override { Destroy(); }

  /// Shows the window and opens the file; empty: the one that the settings name.
  void Open(const std::wstring& path, int show);

  /// A message of the thread: true when it was a key of the menu bar or of going from field to
  /// field.
  bool Translate(MSG& message);

 protected:
  LRESULT Message(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  // What an edit shows goes to all parts of the window.
  void Inserted(designer::MenuItem& item) override;
  void Removing(designer::MenuItem& item) override;
  void Changed(designer::MenuItem& item) override;
  void Clearing() override;

  void MakeParts();
  void Resolution(UINT dpi);
  void Arrange();
  bool DividerMessage(UINT message);
  LRESULT Notify(NMHDR& header);
  bool Command(int id);
  bool FileCommand(int id);
  void HandedOver(std::wstring file);
  void OpenHandedOver();
  bool EditCommand(int id);
  bool InsertCommand(int id);
  bool ViewCommand(int id);
  bool ToolsCommand(int id);
  bool HelpCommand(int id);

  void ShowDocument();
  void ShowCurrent();
  void ShowTitle();
  void Status(const std::wstring& text);
  void EditsHappened();
  void UpdateMenu(HMENU menu);
  LRESULT HighlightChanged(WPARAM wParam);

  void Copy();
  void Paste();
  void Find(bool again);
  void Move(designer::Direction direction);
  void Insert(clsOrvaneData data);
  void InsertFolder(std::int32_t type, bool move);
  void InsertFile();
  void InsertProgram();
  void DroppedFiles(WPARAM drop);
  void BeginDrag(designer::MenuItem& item);
  void Drag();
  void EndDrag(bool drop);
  void ContextMenu(LPARAM at);
  void Preview(POINT at);
  void NextPart();
  void About();
  void Guide();
  void GoTo(designer::MenuItem* item, const std::string& field);

  Program& m_program;
  TreePane m_tree;
  PropertyPane m_properties;
  FindingsPane m_findings;
  PreviewMenu m_preview;
  DocumentFiles m_files;
  RecentMenu m_recent;
  std::optional<std::wstring> m_handedOver;  // by another start, until no dialog is open
  HWND m_status = nullptr;
  UniqueFont m_font;
  UniqueKeys m_keys;
  UniqueKeys m_treeKeys;  // where no text is edited
  std::wstring m_searched;
  bool m_dragging = false;
  Dividers m_dividers;
  Dividers::Divider m_moving = Dividers::Divider::None;  // the one that the mouse holds
};

}  // namespace orvane::designerapp
