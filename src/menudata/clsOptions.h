#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// The user's settings, shared with the designer: read from the registry by every new handler.
class clsOptions {
 public:
  static constexpr std::int32_t OptionLevel_None = 0;
  static constexpr std::int32_t OptionLevel_Minimum = 1;
  static constexpr std::int32_t OptionLevel_Medium = 2;
  static constexpr std::int32_t OptionLevel_Maximum = 3;
  static constexpr std::int32_t OptionsMenuDisplay_DoNotShow = 0;
  static constexpr std::int32_t OptionsMenuDisplay_ShowInMainMenu = 1;
  static constexpr std::int32_t OptionsMenuDisplay_ShowInSubMenu = 2;
  static constexpr std::int32_t ShowFlag_InSubMenu = 1;
  static constexpr std::int32_t ShowFlag_OpenInNewWindow = 2;
  static constexpr std::int32_t ShowFlag_CopyToClipboard = 4;
  static constexpr std::int32_t ShowFlag_RunDialog = 8;
  static constexpr std::int32_t ShowFlag_CommandPrompt = 16;
  static constexpr std::int32_t ShowFlag_CopyTo = 32;
  static constexpr std::int32_t ShowFlag_MoveTo = 64;
  static constexpr std::int32_t ShowFlag_TaskManager = 128;
  static constexpr std::int32_t ShowFlag_Desktop = 256;

  std::wstring m_szPath;
  bool m_bGeneralShowBackground = true;
  bool m_bGeneralAllowMultipleInstances = false;
  bool m_bGeneralSaveWindowPos = true;
  bool m_bShellEnable = true;
  bool m_bShellShowInIE = false;
  std::wstring m_szShellConfigFile;
  std::int32_t m_lShellShowIcons = OptionLevel_Maximum;
  bool m_bShellUseOwnFolderBitmap = false;
  std::int32_t m_lShellShowHistoryMRU = OptionsMenuDisplay_ShowInMainMenu;
  std::int32_t m_lShellMaxHistoryMRU = 5;
  std::int32_t m_lShellShowQuickAccessMRU = OptionsMenuDisplay_ShowInMainMenu;
  std::int32_t m_lShellMaxQuickAccessMRU = 1;
  std::int32_t m_bShellShowOpen = 0;
  std::int32_t m_lShellShowFlags = 254;
  std::wstring m_szShellCustomActionsFile;
  std::int32_t m_lShellMaxMenuText = 64;
  bool m_bShellIgnoreBoundsCheck = false;
  bool m_bShellOwnerDraw = true;
  std::int32_t m_lDebugFlags = 0;
  bool m_bDebugEnable = false;
  std::wstring m_szDebugOutput;
  bool m_bDebugShowWindowsMenuInfo = false;
  bool m_bDebugEnableInMenu = false;
  bool m_bTimingEnable = false;
  std::wstring m_szTimingOutput;
  std::int32_t m_lOptions = 0;

  bool ShowFlag_IsInSubMenu() const;
  bool ShowFlag_IsOpen() const;
  bool ShowFlag_IsCopyToClipboard() const;
  bool ShowFlag_IsRunDialog() const;
  bool ShowFlag_IsCommandPrompt() const;
  bool ShowFlag_IsCopyTo() const;
  bool ShowFlag_IsMoveTo() const;
  bool ShowFlag_IsTaskManager() const;
  bool ShowFlag_IsDesktop() const;
};

}  // namespace orvane
