#include "menudata/clsOptions.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>

#include "menudata/RegistryAccess.h"
#include "menudata/SettingsTable.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Locale.h"
#include "platform/MessageBoxes.h"
#include "platform/SystemInfo.h"
#include "support/DateFormat.h"
#include "support/ProductName.h"
#include "support/Text.h"
#include "support/ThreadState.h"
#include "support/Trace.h"
#include "support/clsTrace.h"

namespace orvane {
namespace {

struct LoggedField {
  const wchar_t* name;
  SettingField field;
};

constexpr LoggedField LoggedFields[] = {
    {L"m_bGeneralShowBackground: ", &clsOptions::m_bGeneralShowBackground},
    {L"m_bGeneralAllowMultipleInstances: ", &clsOptions::m_bGeneralAllowMultipleInstances},
    {L"m_bGeneralSaveWindowPos: ", &clsOptions::m_bGeneralSaveWindowPos},
    {L"m_bShellEnable: ", &clsOptions::m_bShellEnable},
    {L"m_bShellShowInIE: ", &clsOptions::m_bShellShowInIE},
    {L"m_szShellConfigFile: ", &clsOptions::m_szShellConfigFile},
    {L"m_lShellShowIcons: ", &clsOptions::m_lShellShowIcons},
    {L"m_bShellUseOwnFolderBitmap: ", &clsOptions::m_bShellUseOwnFolderBitmap},
    {L"m_lShellShowHistoryMRU: ", &clsOptions::m_lShellShowHistoryMRU},
    {L"m_lShellShowQuickAccessMRU: ", &clsOptions::m_lShellShowQuickAccessMRU},
    {L"m_lShellShowFlags: ", &clsOptions::m_lShellShowFlags},
    {L"m_szShellCustomActionsFile: ", &clsOptions::m_szShellCustomActionsFile},
    {L"m_lShellMaxMenuText: ", &clsOptions::m_lShellMaxMenuText},
    {L"m_bShellIgnoreBoundsCheck: ", &clsOptions::m_bShellIgnoreBoundsCheck},
    {L"m_bShellOwnerDraw: ", &clsOptions::m_bShellOwnerDraw},
    {L"m_bDebugEnable: ", &clsOptions::m_bDebugEnable},
    {L"m_szDebugOutput: ", &clsOptions::m_szDebugOutput},
    {L"m_bTimingEnable: ", &clsOptions::m_bTimingEnable},
    {L"m_szTimingOutput: ", &clsOptions::m_szTimingOutput},
};

constexpr std::int32_t OnlyQuickAccessEntry = 1;  // what the Quick Access list is kept at

constexpr const wchar_t* DebugWarning =
    L"Warning, debugging has been enabled.\r\n\r\nThe windows context menu may be slow to appear "
    L"due to the amount of information being written.";

constexpr const wchar_t* LegalNotice = L"Copyright (c) Tarnwick";

constexpr std::uint32_t PlatformWindows = 1;
constexpr std::uint32_t PlatformNT = 2;

/// A truth as the log numbers it.
int LogNumber(bool value) {
  return value ? -1 : 0;
}

void LogMachine(SystemInfo& system) {
  const SystemInfo::Version version = system.OsVersion();
  Log(g_szAppTitle, L" - ", LegalNotice);
  Log(L"ComputerName: ", system.ComputerName());
  Log(L"UserName: ", system.UserName());
  Log(L"CompanyName: ", system.Organisation());
  Log(L"IsNT: ", LogNumber(version.platform == PlatformNT));
  Log(L"IsWindows: ", LogNumber(version.platform == PlatformWindows));
  Log(L"OsInfo: ", version.major, L".", version.minor, L" (Build ", version.build, L")");
}

void LogSettings(const clsOptions& options) {
  for (const LoggedField& logged : LoggedFields)
    std::visit([&](auto field) { Log(logged.name, options.*field); }, logged.field);
}

void WriteSettings(RegistryKey& key, const clsOptions& options,
                   std::initializer_list<Setting::Use> uses) {
  for (const Setting& setting : Settings()) {
    if (std::ranges::find(uses, setting.use) == uses.end()) continue;
    if (setting.use == Setting::Use::SaveOnly)
      WriteValue(key, setting.value, OnlyQuickAccessEntry);
    else
      std::visit([&](auto field) { WriteValue(key, setting.value, options.*field); },
                 setting.field);
  }
}

}  // namespace

void clsOptions::Reset(SystemInfo& system) {
  const std::wstring folder = system.ProgramFolder();
  clsOptions fresh;
  fresh.m_szPath = std::move(m_szPath);
  fresh.m_bShellShowOpen = m_bShellShowOpen;
  fresh.m_lDebugFlags = m_lDebugFlags;
  fresh.m_lOptions = m_lOptions;
  fresh.m_szShellConfigFile = folder + L"\\Default.cfg";
  fresh.m_szShellCustomActionsFile = folder + L"\\CustomActions.ini";
  fresh.m_szDebugOutput = folder + L"\\Debug.dbg";
  fresh.m_szTimingOutput = folder + L"\\Timing.dbg";
  *this = std::move(fresh);
}

void clsOptions::Reg_Load(const SettingsServices& services, const std::wstring& key) {
  m_szPath = key;
  Reset(services.system);
  m_lDebugFlags = DefaultDebugFlags;
  std::unique_ptr<RegistryKey> open;
  if (services.registry.OpenToRead(Hive::CurrentUser, key, open) == 0) {
    for (const Setting& setting : Settings()) {
      if (setting.use == Setting::Use::SaveOnly) continue;
      std::visit([&](auto field) { ReadValue(*open, setting.value, this->*field); }, setting.field);
    }
  }
  m_szShellConfigFile = Trim(m_szShellConfigFile);
  ProcessSettings(services, false, true);
}

std::vector<std::wstring> clsOptions::UnreadableValues(Registry& registry,
                                                       const std::wstring& key) {
  std::vector<std::wstring> names;
  std::unique_ptr<RegistryKey> open;
  if (registry.OpenToRead(Hive::CurrentUser, key, open) != 0) return names;
  clsOptions scratch;
  for (const Setting& setting : Settings()) {
    const auto read = [&](auto field) { return ReadValue(*open, setting.value, scratch.*field); };
    const std::int32_t error = std::visit(read, setting.field);
    if (error != 0 && error != RegistryKey::NotFound) names.push_back(setting.value);
  }
  return names;
}

std::wstring clsOptions::Reg_Save(const SettingsServices& services, std::wstring key,
                                  bool debugSettingsOnly) {
  if (key.empty()) key = m_szPath;
  std::unique_ptr<RegistryKey> open;
  if (services.registry.OpenToWrite(Hive::CurrentUser, key, open) == 0) {
    WriteSettings(*open, *this, {Setting::Use::Debug});
    if (!debugSettingsOnly)
      WriteSettings(*open, *this, {Setting::Use::LoadAndSave, Setting::Use::SaveOnly});
  }
  if (debugSettingsOnly) {
    if (const ThreadState* thread = ThreadState::Current()) thread->debug->Renew();
    ProcessSettings(services, false, true);
  }
  return key;
}

void clsOptions::ProcessSettings(const SettingsServices& services, bool debugOnly,
                                 bool showDebugWarning) {
  const ThreadState* thread = ThreadState::Current();
  if (!thread) return;
  std::optional<TraceScope> scope;
  if (m_bDebugEnable) {
    if (showDebugWarning)
      services.boxes.Show(DebugWarning, g_szAppTitle, MessageBoxes::Icon::Exclamation);
    // A file that the thread's trace holds open, since another handler began it, cannot be removed.
    thread->debug->Terminate();
    services.files.Remove(m_szDebugOutput);
    thread->debug->Initialize(m_szDebugOutput, m_lDebugFlags);
    LogMachine(services.system);
    scope.emplace(L"ProcessSettings");
    LogSettings(*this);
  } else {
    thread->debug->Terminate();
  }
  if (debugOnly) return;
  if (m_bTimingEnable) {
    services.files.Remove(m_szTimingOutput);
    thread->timing->Initialize(m_szTimingOutput, clsTrace::FlagAutoCommit);
    thread->timing->Output(
        L"Timing session started " + FormatDate(services.locale, services.clock.Now(), {}),
        clsTrace::FlagNoTime);
  } else {
    thread->timing->Terminate();
  }
}

}  // namespace orvane
