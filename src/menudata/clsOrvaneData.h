#pragma once

#include <cstdint>
#include <memory>

#include "menudata/FieldText.h"
#include "menudata/clsCollection.h"

namespace orvane {

/// The record of one menu entry: its type, its option bits and the texts of its kind. Codes below
/// 1000 come from the menu definition file, the others are built-in commands and submenus.
class clsOrvaneData : public Object {
 public:
  static constexpr std::int32_t TypeRoot = 0;
  static constexpr std::int32_t TypeFolder = 1;
  static constexpr std::int32_t TypePopupMenu = 2;
  static constexpr std::int32_t TypeSeparator = 3;
  static constexpr std::int32_t TypeFile = 6;
  static constexpr std::int32_t TypeCustomAction = 7;
  static constexpr std::int32_t TypeSelectionTask = 8;
  static constexpr std::int32_t TypeDynamicFolder = 9;
  static constexpr std::int32_t TypeCopyToX = 10;
  static constexpr std::int32_t TypeResetHistoryMRU = 1000;
  static constexpr std::int32_t TypeResetQuickAccessMRU = 1001;
  static constexpr std::int32_t TypeDesigner = 1002;
  static constexpr std::int32_t TypeOpenInNewWindow = 1003;
  static constexpr std::int32_t TypeAddToQuickAccessMRU = 1004;
  static constexpr std::int32_t TypeCopyFilenamesToClipboard = 1005;
  static constexpr std::int32_t TypeRunDialog = 1006;
  static constexpr std::int32_t TypeCommandPrompt = 1007;
  static constexpr std::int32_t TypeCopyTo = 1008;
  static constexpr std::int32_t TypeMoveTo = 1009;
  static constexpr std::int32_t TypeTaskManager = 1010;
  static constexpr std::int32_t TypeShowDesktop = 1011;
  static constexpr std::int32_t TypeRestoreDesktop = 1012;
  static constexpr std::int32_t TypePopupHistory = 1013;
  static constexpr std::int32_t TypePopupQuickAccess = 1014;
  static constexpr std::int32_t TypeDynamicFolderEmpty = 1015;
  static constexpr std::int32_t TypeDynamicFolderNoAnswer = 1016;  // its share was too slow

  static constexpr std::int32_t OptionsLeaf = 1;
  static constexpr std::int32_t OptionsExploreInNewWindow = 2;
  static constexpr std::int32_t OptionsCSIDL = 4;
  static constexpr std::int32_t OptionsBrowseAndOpen = 8;

  static constexpr std::int32_t SelectionOptions_ShowAlways = 1;
  static constexpr std::int32_t SelectionOptions_ShowSingle = 2;
  static constexpr std::int32_t SelectionOptions_ShowMultiple = 4;
  static constexpr std::int32_t SelectionOptions_Recurse = 8;
  static constexpr std::int32_t SelectionOptions_Clipboard = 16;
  static constexpr std::int32_t SelectionOptions_FQP = 32;
  static constexpr std::int32_t SelectionOptions_QIS = 64;
  static constexpr std::int32_t SelectionOptions_ShortNames = 128;

  static constexpr std::int32_t CopyToXOptions_Move = 1;

  std::int32_t m_lType = TypeRoot;
  std::int32_t m_lOptions = 0;
  FieldText m_szRoot_Caption;
  FieldText m_szFolder_Location;
  FieldText m_szFolder_Caption;
  FieldText m_szPopupMenu_caption;
  FieldText m_szFile_Location;
  FieldText m_szFile_Caption;
  FieldText m_szAction_Caption;
  FieldText m_szAction_Actions;
  FieldText m_szSelection_WorkingDir;
  FieldText m_szSelection_Caption;
  FieldText m_szSelection_Command;
  FieldText m_szSelection_Parms;
  FieldText m_szSelection_File;
  FieldText m_szSelection_CmdPrefix;
  FieldText m_szSelection_CmdSuffix;
  FieldText m_szSelection_FilePrefix;
  FieldText m_szSelection_FileSuffix;
  FieldText m_szSelection_Filter;
  std::int32_t m_lSelection_Options = 0;
  FieldText m_szDFolder_Location;
  FieldText m_szDFolder_Caption;
  FieldText m_szDFolder_Filter;
  std::int32_t m_lDFolder_Options = 0;
  FieldText m_szCopyToX_Location;
  FieldText m_szCopyToX_Caption;
  std::int32_t m_lCopyToX_Options = 0;
  std::shared_ptr<clsCollection> m_oBitmap;

  bool IsTypeRoot() const { return m_lType == TypeRoot; }
  bool IsTypeFolder() const { return m_lType == TypeFolder; }
  bool IsTypePopupMenu() const { return m_lType == TypePopupMenu; }
  bool IsTypeSeparator() const { return m_lType == TypeSeparator; }
  bool IsTypeFile() const { return m_lType == TypeFile; }
  bool IsTypeCustomAction() const { return m_lType == TypeCustomAction; }
  bool IsTypeSelectionTask() const { return m_lType == TypeSelectionTask; }
  bool IsTypeDynamicFolder() const { return m_lType == TypeDynamicFolder; }
  bool IsTypeCopyToX() const { return m_lType == TypeCopyToX; }
  bool IsTypeResetHistoryMRU() const { return m_lType == TypeResetHistoryMRU; }
  bool IsTypeResetQuickAccessMRU() const { return m_lType == TypeResetQuickAccessMRU; }
  bool IsTypeDesigner() const { return m_lType == TypeDesigner; }
  bool IsTypeOpenInNewWindow() const { return m_lType == TypeOpenInNewWindow; }
  bool IsTypeCopyFilenamesToClipbard() const { return m_lType == TypeCopyFilenamesToClipboard; }
  bool IsTypeRunDialog() const { return m_lType == TypeRunDialog; }
  bool IsTypeCommandPrompt() const { return m_lType == TypeCommandPrompt; }
  bool IsTypeCopyTo() const { return m_lType == TypeCopyTo; }
  bool IsTypeMoveTo() const { return m_lType == TypeMoveTo; }
  bool IsTypeTaskManager() const { return m_lType == TypeTaskManager; }
  bool IsTypeShowDesktop() const { return m_lType == TypeShowDesktop; }
  bool IsTypeRestoreDesktop() const { return m_lType == TypeRestoreDesktop; }
  bool IsTypeDynamicFolderEmpty() const { return m_lType == TypeDynamicFolderEmpty; }

  bool OptionsIsLeaf() const { return (m_lOptions & OptionsLeaf) > 0; }
  bool OptionsIsExploreInNewWindow() const { return (m_lOptions & OptionsExploreInNewWindow) > 0; }
  bool OptionsIsCSIDL() const { return (m_lOptions & OptionsCSIDL) > 0; }
  bool OptionsIsBrowseAndOpen() const { return (m_lOptions & OptionsBrowseAndOpen) > 0; }

  // The masked bit, non-zero when it is set.
  std::int32_t SelectionOptions_IsShowAlways() const { return Selection(1); }
  std::int32_t SelectionOptions_IsShowSingle() const { return Selection(2); }
  std::int32_t SelectionOptions_IsShowMultiple() const { return Selection(4); }
  std::int32_t SelectionOptions_IsRecurse() const { return Selection(8); }
  std::int32_t SelectionOptions_IsClipboard() const { return Selection(16); }
  std::int32_t SelectionOptions_IsFQP() const { return Selection(32); }
  std::int32_t SelectionOptions_IsQIS() const { return Selection(64); }
  std::int32_t SelectionOptions_IsShortNames() const { return Selection(128); }
  std::int32_t CopyToXOptions_IsMove() const { return m_lCopyToX_Options & CopyToXOptions_Move; }

  /// The caption and the location field of the item's type; without one the text is empty and
  /// setting it stores nothing.
  const FieldText& Caption() const;
  void Caption(FieldText caption);
  const FieldText& Location() const;
  void Location(FieldText location);

  /// The special-folder number that m_szFolder_Location holds, 0 for blanks. Error 13 or 6 when the
  /// text is no 32-bit number.
  std::int32_t FolderCSIDL() const;
  void FolderCSIDL(std::int32_t csidl);

  void Reset() { *this = clsOrvaneData(); }

 private:
  std::int32_t Selection(std::int32_t bit) const { return m_lSelection_Options & bit; }

  FieldText m_none;  // stays empty: what the views of a type without the field refer to
};

}  // namespace orvane
