#include "menudata/SettingsTable.h"

#include <algorithm>

#include "support/Text.h"
#include "support/clsTrace.h"

namespace orvane {
namespace {

using Use = Setting::Use;
using Page = Setting::Page;
using Options = clsOptions;

constexpr Setting::Name IconLevels[] = {
    {Options::OptionLevel_None, L"none", L"no pictures"},
    {Options::OptionLevel_Minimum, L"minimum", L"pictures of popups and of Orvane itself"},
    {Options::OptionLevel_Medium, L"medium", L"pictures of commands and icons of files too"},
    {Options::OptionLevel_Maximum, L"maximum", L"the same as medium"},
};

constexpr Setting::Name ListPlaces[] = {
    {Options::OptionsMenuDisplay_DoNotShow, L"hidden", L"not shown"},
    {Options::OptionsMenuDisplay_ShowInMainMenu, L"main-menu", L"directly in the shell's menu"},
    {Options::OptionsMenuDisplay_ShowInSubMenu, L"submenu", L"in a submenu of Orvane's menu"},
};

constexpr Setting::Name Commands[] = {
    {Options::ShowFlag_InSubMenu, L"in-submenu", L"the commands stand in Orvane's own menu"},
    {Options::ShowFlag_OpenInNewWindow, L"open-in-new-window", L"Open in New Window"},
    {Options::ShowFlag_CopyToClipboard, L"copy-to-clipboard", L"Copy to Clipboard"},
    {Options::ShowFlag_RunDialog, L"run-dialog", L"Copy to Run Dialog"},
    {Options::ShowFlag_CommandPrompt, L"command-prompt", L"Command Prompt Here"},
    {Options::ShowFlag_CopyTo, L"copy-to", L"Copy To"},
    {Options::ShowFlag_MoveTo, L"move-to", L"Move To"},
    {Options::ShowFlag_TaskManager, L"task-manager", L"Task Manager"},
};

constexpr Setting::Name TraceFlags[] = {
    {clsTrace::FlagReset, L"reset", L"the file is emptied at the start"},
    {clsTrace::FlagAutoCommit, L"auto-commit", L"the file is opened and closed for each line"},
    {clsTrace::FlagEncrypt, L"encrypt", L"the file holds scrambled records"},
    {clsTrace::FlagInternet, L"internet", L"lines go to a listener at 127.0.0.1, port 12000"},
};

constexpr std::int32_t MostEntries = 1000;

// "ShelllMax..." is how the designer spells it.
constexpr Setting Table[] = {
    {L"ShellEnable", &Options::m_bShellEnable, Use::LoadAndSave, Page::Menu, L"Show the menu",
     L"Whether Orvane adds anything to the menu of a right-click."},
    {L"ShellShowInIE", &Options::m_bShellShowInIE, Use::LoadAndSave, Page::Menu,
     L"Show it in Internet Explorer", L"Whether the menu is there in Internet Explorer's windows."},
    {L"ShellShowIcons", &Options::m_lShellShowIcons, Use::LoadAndSave, Page::Menu, L"Pictures",
     L"Which entries have a picture.", IconLevels, false, 0, Options::OptionLevel_Maximum},
    {L"ShellUseOwnFolderBitmap", &Options::m_bShellUseOwnFolderBitmap, Use::LoadAndSave, Page::Menu,
     L"One picture for all folders",
     L"Whether folders have Orvane's picture of a folder in place of their own icons, which take "
     L"longer to get."},
    {L"ShellShowHistoryMRU", &Options::m_lShellShowHistoryMRU, Use::LoadAndSave, Page::Lists,
     L"History", L"Where the list of what was opened last stands.", ListPlaces, false, 0,
     Options::OptionsMenuDisplay_ShowInSubMenu},
    {L"ShelllMaxHistoryMRU",
     &Options::m_lShellMaxHistoryMRU,
     Use::LoadAndSave,
     Page::Lists,
     L"Entries of History",
     L"How many entries the History list keeps. The name has three l.",
     {},
     false,
     0,
     MostEntries},
    {L"ShellShowQuickAccessMRU", &Options::m_lShellShowQuickAccessMRU, Use::LoadAndSave,
     Page::Lists, L"Quick Access", L"Where the Quick Access list stands.", ListPlaces, false, 0,
     Options::OptionsMenuDisplay_ShowInSubMenu},
    {L"ShelllMaxQuickAccessMRU",
     &Options::m_lShellMaxQuickAccessMRU,
     Use::SaveOnly,
     Page::Lists,
     L"Entries of Quick Access",
     L"Written along with the others and never read: the list has one entry.",
     {},
     false,
     1,
     1},
    {L"ShellShowFlags", &Options::m_lShellShowFlags, Use::LoadAndSave, Page::Commands,
     L"Built-in commands", L"Which commands are offered, as a sum.", Commands, true},
    {L"ShellConfigFile", &Options::m_szShellConfigFile, Use::LoadAndSave, Page::Files,
     L"Menu definition file", L"The file that holds the menu."},
    {L"ShellCustomActionsFile", &Options::m_szShellCustomActionsFile, Use::LoadAndSave, Page::Files,
     L"Custom actions file", L"The file that holds the custom actions."},
    {L"ShellMaxMenuText", &Options::m_lShellMaxMenuText, Use::LoadAndSave, Page::Menu,
     L"Longest caption",
     L"After how many characters a caption is cut and ends in \"...\". 0 cuts nothing."},
    {L"ShellIgnoreBoundsCheck", &Options::m_bShellIgnoreBoundsCheck, Use::LoadAndSave, Page::Menu,
     L"More entries than Windows allows",
     L"Whether the menu goes on past the number of commands that Windows offers. For programs that "
     L"offer too few; entries may then do nothing."},
    {L"ShellOwnerDraw", &Options::m_bShellOwnerDraw, Use::LoadAndSave, Page::Menu,
     L"Orvane draws its entries",
     L"Whether the entries of Orvane's own menu are drawn by Orvane, or by Windows."},
    {L"DebugFlags", &Options::m_lDebugFlags, Use::LoadOnly, Page::Logs, L"Form of the debug log",
     L"How the debug log is written, as a sum. Nothing but this program writes the value.",
     TraceFlags, true},
    {L"DebugEnable", &Options::m_bDebugEnable, Use::Debug, Page::Logs, L"Debug log",
     L"Whether every operation is logged. Each right-click then begins with a warning, and is "
     L"slow."},
    {L"DebugOutput", &Options::m_szDebugOutput, Use::Debug, Page::Logs, L"Debug log's file",
     L"The file of the debug log. Each right-click begins it anew."},
    {L"DebugShowWindowsMenuInfo", &Options::m_bDebugShowWindowsMenuInfo, Use::Debug, Page::Logs,
     L"Tell what Windows offers",
     L"Whether each right-click first shows a message with what Windows asks for."},
    {L"DebugEnableInMenu", &Options::m_bDebugEnableInMenu, Use::Debug, Page::Logs,
     L"Debug switch in the menu",
     L"Whether the menu has an entry that switches the debug log on and off."},
    {L"TimingEnable", &Options::m_bTimingEnable, Use::LoadAndSave, Page::Logs, L"Timing log",
     L"Whether the times that a menu takes are logged."},
    {L"TimingOutput", &Options::m_szTimingOutput, Use::LoadAndSave, Page::Logs,
     L"Timing log's file", L"The file of the timing log. Each right-click begins it anew."},
    {L"GeneralShowBackground", &Options::m_bGeneralShowBackground, Use::LoadAndSave, Page::Windows,
     L"Coloured background", L"Whether Orvane's windows have a coloured background."},
    {L"GeneralAllowMultipleInstances", &Options::m_bGeneralAllowMultipleInstances, Use::LoadAndSave,
     Page::Windows, L"Several designers",
     L"Whether the designer may be started more than once at a time."},
    {L"GeneralSaveWindowPos", &Options::m_bGeneralSaveWindowPos, Use::LoadAndSave, Page::Windows,
     L"Remember the window's place", L"Whether the designer opens where it was closed."},
};

}  // namespace

std::span<const Setting> Settings() {
  return Table;
}

const Setting* FindSetting(std::wstring_view value) {
  const std::wstring wanted = LowerCase(value);
  const auto* found = std::ranges::find_if(
      Table, [&](const Setting& setting) { return LowerCase(setting.value) == wanted; });
  return found == std::end(Table) ? nullptr : found;
}

clsOptions DefaultSettings(SystemInfo& system) {
  clsOptions options;
  options.Reset(system);
  options.m_lDebugFlags = DefaultDebugFlags;
  return options;
}

}  // namespace orvane
