#include "commands/BuiltInCommands.h"

#include "commands/Opener.h"
#include "commands/RecentItems.h"
#include "commands/Warning.h"
#include "customactions/KeyNotation.h"
#include "menudata/ShellPaths.h"
#include "platform/Clock.h"
#include "platform/SystemInfo.h"
#include "support/FullPath.h"
#include "support/Trace.h"

namespace orvane {
namespace {

bool IsListed(const CommandContext& context, const clsOrvaneData& item) {
  const clsMRU& list = context.quickAccess;
  for (std::int32_t i = 1; i <= list.FileCount(); ++i) {
    clsOrvaneData listed;
    context.tools.BreakdownHistoryMRU(list.File(i), listed);
    if (listed.m_lType == item.m_lType && listed.Location() == item.Location()) return true;
  }
  return false;
}

std::wstring InQuotesWhenBlank(const std::wstring& text) {
  return text.find(L' ') == std::wstring::npos ? text : L'"' + text + L'"';
}

/// By its full path only: a program of that name in the current folder must not be the one.
std::wstring CommandInterpreter(SystemInfo& system) {
  std::wstring program = system.Environment(L"comspec");
  if (!IsFullPath(program) || program.find(L'"') != std::wstring::npos)
    program = system.SystemFolder() + L"\\cmd.exe";
  return program;
}

/// Waits for another window than `before` to be in front: a busy shell opens its dialog late, and
/// a path with Enter behind it must not land in a document.
bool IsRunDialogThere(const Platform& platform, WindowHandle before) {
  constexpr std::uint32_t UsualWait = 100;  // milliseconds
  constexpr std::uint32_t LongerWait = 1000;
  constexpr std::uint32_t Interval = 50;
  platform.windows.RunMessages(UsualWait);
  platform.clock.Pause(UsualWait);
  for (std::uint32_t waited = 0;; waited += Interval) {
    const WindowHandle front = platform.keyboard.Front();
    if (front != WindowHandle::None && front != before) return true;
    if (waited >= LongerWait) return false;
    platform.windows.RunMessages(Interval);
    platform.clock.Pause(Interval);
  }
}

}  // namespace

void AddToQuickAccess(const CommandContext& context) {
  clsOrvaneData item;
  const bool isFile = !context.selection.file.empty();
  item.m_lType = isFile ? clsOrvaneData::TypeFile : clsOrvaneData::TypeFolder;
  item.Location(isFile ? context.selection.file : context.selection.folder);
  item.Caption(GetDisplayName(context.platform.shell, item.Location()));
  if (!IsListed(context, item)) Remember(context, context.quickAccess, item);
}

void StartDesigner(const CommandContext& context, WindowHandle window) {
  const Platform& platform = context.platform;
  Opener opener(platform.launcher, platform.profiles, platform.shell);
  std::wstring program;
  for (const wchar_t* place : {L"\\designer.exe", L"\\..\\designer\\designer.exe"}) {
    program = platform.system.ProgramFolder() + place;
    Log(L"szFolder=", program);
    if (opener.ShellExecuteChecked({.owner = window, .verb = L"open", .file = program})) break;
  }
  Log(L"Err.Number=", GetPendingError().number);
  WarnOfPendingError(platform.boxes, program);
}

void TypeIntoRunDialog(const CommandContext& context) {
  Keyboard& keyboard = context.platform.keyboard;
  const WindowHandle before = keyboard.Front();
  keyboard.Press(Keyboard::LeftWindows, false);
  keyboard.Press(Keyboard::LetterR, false);
  keyboard.Press(Keyboard::LetterR, true);
  keyboard.Press(Keyboard::LeftWindows, true);
  if (IsRunDialogThere(context.platform, before))
    SendKeys(keyboard, InQuotesWhenBlank(context.selection.onlyItem));
  else
    Log(L"The Run dialog does not open");
}

/// The folder is the new process's alone: the host's own current folder, which other threads of it
/// rely on, stays as it is.
void OpenCommandPrompt(const CommandContext& context) {
  Launcher& launcher = context.platform.launcher;
  const std::wstring program = CommandInterpreter(context.platform.system);
  const std::wstring commandLine = InQuotesWhenBlank(program) + L" /k ";
  if (launcher.Start(program, commandLine, context.selection.folder)) return;
  if (!context.selection.folder.empty()) launcher.Start(program, commandLine, L"");
}

}  // namespace orvane
