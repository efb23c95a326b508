#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

class Clock;
class FileSystem;
class Locale;
class MessageBoxes;
class Registry;
class SystemInfo;

/// What loading, saving and applying the settings touches, beside the thread's two traces.
struct SettingsServices {
  Registry& registry;
  FileSystem& files;
  MessageBoxes& boxes;
  SystemInfo& system;
  Clock& clock;
  Locale& locale;
};

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

  bool ShowFlag_IsInSubMenu() const { return Shows(ShowFlag_InSubMenu); }
  bool ShowFlag_IsOpen() const { return Shows(ShowFlag_OpenInNewWindow); }
  bool ShowFlag_IsCopyToClipboard() const { return Shows(ShowFlag_CopyToClipboard); }
  bool ShowFlag_IsRunDialog() const { return Shows(ShowFlag_RunDialog); }
  bool ShowFlag_IsCommandPrompt() const { return Shows(ShowFlag_CommandPrompt); }
  bool ShowFlag_IsCopyTo() const { return Shows(ShowFlag_CopyTo); }
  bool ShowFlag_IsMoveTo() const { return Shows(ShowFlag_MoveTo); }
  bool ShowFlag_IsTaskManager() const { return Shows(ShowFlag_TaskManager); }
  bool ShowFlag_IsDesktop() const { return Shows(ShowFlag_Desktop); }

  /// Every setting back to its default; m_szPath, m_bShellShowOpen, m_lDebugFlags and m_lOptions
  /// stay.
  void Reset(SystemInfo& system);

  /// Reads the settings from a key under HKEY_CURRENT_USER and applies them; what is missing there,
  /// or of another type, gets its default.
  void Reg_Load(const SettingsServices& services, const std::wstring& key);

  /// The values of the key that are there and that Reg_Load cannot read.
  static std::vector<std::wstring> UnreadableValues(Registry& registry, const std::wstring& key);

  /// Writes the settings, or the four of the debug menu only, which then restarts the debug trace.
  /// An empty key means m_szPath. Gives back the key that was written to.
  std::wstring Reg_Save(const SettingsServices& services, std::wstring key, bool debugSettingsOnly);

  /// Starts the traces that are switched on, each on a new file.
  void ProcessSettings(const SettingsServices& services, bool debugOnly, bool showDebugWarning);

 private:
  bool Shows(std::int32_t flag) const { return (m_lShellShowFlags & flag) > 0; }
};

}  // namespace orvane
