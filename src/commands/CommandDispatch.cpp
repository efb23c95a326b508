#include "commands/CommandDispatch.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>

#include "commands/BuiltInCommands.h"
#include "commands/ClipboardInUse.h"
#include "commands/CopyNames.h"
#include "commands/CopyOrMove.h"
#include "commands/FolderCommand.h"
#include "commands/Opener.h"
#include "commands/RecentItems.h"
#include "commands/SelectionTask.h"
#include "commands/Warning.h"
#include "platform/Keyboard.h"
#include "support/Number.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Record = std::shared_ptr<clsOrvaneData>;

/// One invocation under way.
struct Call {
  const CommandContext& context;
  WindowHandle window;
  std::intptr_t siteBrowser;
  bool bCtrlPressed = false;
  bool bShiftPressed = false;
  bool isOurs = false;
};

Opener MakeOpener(const Call& call) {
  const Platform& platform = call.context.platform;
  return Opener(platform.launcher, platform.profiles, platform.shell);
}

void ShowFolder(const Call& call, Data& item) {
  FolderCommand(call.context, call.window, call.siteBrowser)
      .Run(item, call.bCtrlPressed, call.bShiftPressed);
}

void ResetList(clsMRU& list) {
  list.Reset();
  list.Save();
}

void OpenFileItem(const Call& call, Data& item) {
  Remember(call.context, call.context.history, item);
  MakeOpener(call).OpenFile(item.m_szFile_Location, call.window);
}

void PlayCustomAction(const Call& call, Data& item) {
  clsCustomActions action(call.context.actions);
  action.m_szActions = item.m_szAction_Actions;
  action.SendActions(L"");
}

void CopyOrMove(const Call& call, bool copy, const std::wstring& destination) {
  const CommandContext& context = call.context;
  const Platform& platform = context.platform;
  CopyOrMoveSelection({platform.dialogs, platform.files, platform.shell, platform.boxes,
                       context.copyTo, context.options.m_bGeneralShowBackground},
                      platform.operations, call.window, context.selection.dataObject.get(), copy,
                      destination);
}

void PostTaskManager(const Call& call) {
  constexpr std::int32_t TaskManager = 420;  // an entry of the taskbar's own menu
  PostTrayCommand(call.context.platform.windows, TaskManager);
}

/// What each type of item does, but for copying names to the clipboard, whose failure is the
/// shell's to know; a type that is not here does nothing.
struct Row {
  std::int32_t type;
  void (*run)(const Call& call, Data& item);
};

constexpr Row Rows[] = {
    {Data::TypeFolder, ShowFolder},
    {Data::TypeResetHistoryMRU, [](const Call& call, Data&) { ResetList(call.context.history); }},
    {Data::TypeResetQuickAccessMRU,
     [](const Call& call, Data&) { ResetList(call.context.quickAccess); }},
    {Data::TypeAddToQuickAccessMRU,
     [](const Call& call, Data&) { AddToQuickAccess(call.context); }},
    {Data::TypeDesigner, [](const Call& call, Data&) { StartDesigner(call.context, call.window); }},
    {Data::TypeOpenInNewWindow,
     [](const Call& call, Data&) {
       MakeOpener(call).OpenFile(call.context.selection.file, call.window);
     }},
    {Data::TypeFile, OpenFileItem},
    {Data::TypeCustomAction, PlayCustomAction},
    {Data::TypeRunDialog, [](const Call& call, Data&) { TypeIntoRunDialog(call.context); }},
    {Data::TypeCommandPrompt, [](const Call& call, Data&) { OpenCommandPrompt(call.context); }},
    {Data::TypeCopyTo, [](const Call& call, Data&) { CopyOrMove(call, true, L""); }},
    {Data::TypeMoveTo, [](const Call& call, Data&) { CopyOrMove(call, false, L""); }},
    {Data::TypeTaskManager, [](const Call& call, Data&) { PostTaskManager(call); }},
    {Data::TypeSelectionTask,
     [](const Call& call, Data& item) {
       ExecuteSelectionTask(call.context, call.window, item, call.bShiftPressed, call.bCtrlPressed);
     }},
    {Data::TypeCopyToX,
     [](const Call& call, Data& item) {
       CopyOrMove(call, item.CopyToXOptions_IsMove() == 0, item.m_szCopyToX_Location);
     }},
};

/// The identifier of an offset; Error 6 for one that no menu can hold.
std::int32_t CommandId(const CommandContext& context, std::int32_t offset) {
  const std::int64_t id = std::int64_t{offset} + context.firstId;
  using Limits = std::numeric_limits<std::int32_t>;
  if (id < Limits::min() || id > Limits::max()) throw Error(Error::Overflow, L"Overflow");
  return static_cast<std::int32_t>(id);
}

/// The offset that a verb names by its digits after "Item". Error 13 or 6 when it names none.
std::int32_t VerbOffset(std::wstring_view verb) {
  constexpr std::size_t PrefixLength = 4;
  return ParseNumber(verb.substr(std::min(verb.size(), PrefixLength)));
}

/// The entry that switches the debug log on and off, which has no node.
bool IsDebugSwitch(const CommandContext& context, std::int32_t offset) {
  return context.options.m_bDebugEnableInMenu && offset == 0;
}

bool IsOpen(const CommandContext& context, const InvokeRequest& request) {
  return LowerCase(request.verb) == L"open" && !context.selection.file.empty();
}

/// The menu's item of that identifier, or none.
Command Find(const CommandContext& context, std::int32_t id) {
  Command command = context.commands.Find(id);
  if (!command) Log(L"Entry not found!");
  return command;
}

void ToggleDebugging(const CommandContext& context) {
  const Platform& platform = context.platform;
  context.options.m_bDebugEnable = !context.options.m_bDebugEnable;
  context.options.Reg_Save({platform.registry, platform.files, platform.boxes, platform.system,
                            platform.clock, platform.locale},
                           L"", true);
}

/// The record of the chosen entry; null when there is none, or when all is done already.
Record Identify(const InvokeRequest& request, Call& call) {
  const CommandContext& context = call.context;
  std::int32_t offset = request.offset;
  if (request.byOffset) {
    call.bCtrlPressed = context.platform.keyboard.IsDown(Keyboard::Control);
    call.bShiftPressed = context.platform.keyboard.IsDown(Keyboard::Shift);
  } else {
    Log(L"Verb=", request.verb);
    if (IsOpen(context, request)) {
      call.isOurs = true;
      MakeOpener(call).OpenFile(context.selection.file, call.window);
      return nullptr;
    }
    offset = VerbOffset(request.verb);
  }
  const std::int32_t lCmdKey = CommandId(context, offset);
  Log(L"lCmdKey=", lCmdKey, L"  bCtrlPressed=", call.bCtrlPressed, L"  bShiftPressed=",
      call.bShiftPressed);
  if (IsDebugSwitch(context, offset)) {
    call.isOurs = true;
    ToggleDebugging(context);
    return nullptr;
  }
  const Command command = Find(context, lCmdKey);
  if (!command) return nullptr;
  call.isOurs = true;
  Record item = command.Record();
  Log(L"Index=", command.Index());
  Log(L"m_lType=", item->m_lType, L"  m_lOptions=", item->m_lOptions);
  return item;
}

void Run(const Call& call, Data& item) {
  const auto row = std::ranges::find(Rows, item.m_lType, &Row::type);
  if (row != std::end(Rows)) row->run(call, item);
}

/// The HRESULT of a numbered error: its own when it is one.
std::int32_t ToHResult(const PendingError& error) {
  constexpr std::uint32_t OutOfMemory = 0x8007000E;
  constexpr std::uint32_t Control = 0x800A0000;  // the facility of numbered errors
  if (error.number < 0) return error.number;
  if (error.number == Error::OutOfMemory) return static_cast<std::int32_t>(OutOfMemory);
  return static_cast<std::int32_t>(Control | (static_cast<std::uint32_t>(error.number) & 0xFFFF));
}

/// The one command whose failure the shell gets to know.
std::int32_t CopyNames(const Call& call) {
  try {
    CopyNamesToClipboard(call.context.platform, call.window,
                         call.context.selection.dataObject.get(), call.bCtrlPressed,
                         call.bShiftPressed);
    return 0;
  } catch (const ClipboardInUse& error) {
    Warn(call.context.platform.boxes, error.Description());
    return ToHResult(CaughtError());
  } catch (...) {
    return ToHResult(CaughtError());
  }
}

}  // namespace

InvokeOutcome IContextMenu_InvokeCommand(const CommandContext& context,
                                         const InvokeRequest& request) {
  TraceScope scope(L"IContextMenu_InvokeCommand");
  SetPendingError({});
  scope.CheckErrorAtExit();
  Call call{context, request.window, request.siteBrowser};
  std::int32_t result = 0;
  try {
    const std::int32_t lpVerb = request.offset;
    Log(L"Source hWnd=", Hex(request.window), L"  lpVerb=",
        request.byOffset ? Hex(lpVerb) : Hex(request.verb.data()));
    const Record item = Identify(request, call);
    if (item && item->IsTypeCopyFilenamesToClipbard())
      result = CopyNames(call);
    else if (item)
      Run(call, *item);
  } catch (...) {
    scope.Caught();
  }
  return {call.isOurs, result};
}

CommandText IContextMenu_GetCommandString(const CommandContext& context,
                                          const TextRequest& request) {
  constexpr std::uint32_t Verb = 0;          // GCS_VERBA
  constexpr std::uint32_t HelpText = 1;      // GCS_HELPTEXTA
  constexpr std::uint32_t WideHelpText = 5;  // GCS_HELPTEXTW
  TraceScope scope(L"IContextMenu_GetCommandString");
  CommandText answer;
  try {
    Log(L"idCmd=", request.idCmd, L"  uFlags=", request.uFlags, L"  pszName=", request.pszName,
        L"  cchMax=", request.cchMax);
    const std::int32_t id = CommandId(context, request.idCmd);
    Log(L"Actual Command Id=", id);
    const Command command = Find(context, id);
    answer.isOurs = command || IsDebugSwitch(context, request.idCmd);
    if (!command) return answer;
    const Record item = command.Record();
    Log(L"m_lType=", item->m_lType, L"  ", item->IsTypeFolder());
    std::wstring text = context.tools.GetExplorerDescription(*item, context.selection.file,
                                                             context.selection.folder);
    if (text.empty()) return answer;
    answer.kind =
        request.uFlags == WideHelpText ? CommandText::Kind::Wide : CommandText::Kind::Ansi;
    if (request.uFlags == Verb) answer.text = L"Item" + std::to_wstring(request.idCmd);
    if (request.uFlags == HelpText || request.uFlags == WideHelpText) answer.text = std::move(text);
  } catch (...) {
    scope.Caught();
  }
  return answer;
}

}  // namespace orvane
