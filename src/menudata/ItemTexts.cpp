// The texts that clsOrvaneDataTools makes of an item for menus, status bar and designer.

#include <span>
#include <utility>

#include "menudata/ShellPaths.h"
#include "menudata/clsOrvaneDataTools.h"
#include "support/ProductName.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

struct Caption {
  std::int32_t type;
  const wchar_t* text;
};

constexpr Caption BuiltInCaptions[] = {
    {Data::TypeDesigner, L"&Designer..."},
    {Data::TypePopupHistory, L"&History"},
    {Data::TypePopupQuickAccess, L"&Quick Access"},
    {Data::TypeResetHistoryMRU, L"&Reset History MRU"},
    {Data::TypeResetQuickAccessMRU, L"Rese&t Quick Access MRU"},
    {Data::TypeOpenInNewWindow, L"Open in New Window"},
    {Data::TypeCopyFilenamesToClipboard, L"Copy to Clipboard"},
    {Data::TypeRunDialog, L"Copy to Run Dialog..."},
    {Data::TypeCopyTo, L"Copy to..."},
    {Data::TypeMoveTo, L"Move to..."},
    {Data::TypeCommandPrompt, L"Command Prompt Here"},
    {Data::TypeTaskManager, L"Task Manager"},
    {Data::TypeShowDesktop, L"Show Desktop"},
    {Data::TypeAddToQuickAccessMRU, L"&Add To Quick Access"},
    {Data::TypeDynamicFolderEmpty, L"(Empty)"},
    {Data::TypeDynamicFolderNoAnswer, L"(No answer)"},
};

bool HasCaptionOfTheUser(const Data& item) {
  return item.IsTypeFolder() || item.IsTypeFile() || item.IsTypeDynamicFolder() ||
         item.IsTypeCopyToX() || item.IsTypeCustomAction() || item.IsTypeSelectionTask() ||
         item.IsTypePopupMenu();
}

std::wstring FullCaption(const Data& item) {
  if (item.IsTypeFolder() && item.OptionsIsBrowseAndOpen())
    return std::wstring(TrimEnd(item.Caption())) + L"...";
  for (const Caption& caption : BuiltInCaptions) {
    if (caption.type == item.m_lType) return caption.text;
  }
  return item.Caption();
}

/// What a description names.
enum class Names { Nothing, Location, Caption, SpecialFolder, CurrentFile, CurrentFolder };

struct Help {
  std::int32_t type;
  const wchar_t* before;
  Names names = Names::Nothing;
  const wchar_t* after = L"";
  const wchar_t* suffix = L"";  // after the product's name
  bool (*when)(const Data&) =
      nullptr;  // a row for some items of the type stands before the others'
};

bool IsSpecialFolder(const Data& item) {
  return item.OptionsIsCSIDL();
}
bool Moves(const Data& item) {
  return item.CopyToXOptions_IsMove() != 0;
}

constexpr Help ExplorerHelp[] = {
    {Data::TypeFolder, L"", Names::SpecialFolder, L"", L" Special Folder", IsSpecialFolder},
    {Data::TypeFolder, L"", Names::Location, L"", L" Folder"},
    {Data::TypeFile, L"", Names::Location, L"", L" File"},
    {Data::TypeDesigner, L"Start the Designer"},
    {Data::TypeResetHistoryMRU, L"Reset the History MRU"},
    {Data::TypeResetQuickAccessMRU, L"Reset the Quick Access MRU"},
    {Data::TypeCustomAction, L"", Names::Caption, L"", L" Custom Action"},
    {Data::TypeSelectionTask, L"", Names::Caption, L"", L" Selection Task"},
    {Data::TypeOpenInNewWindow, L"Open the file \"", Names::CurrentFile, L"\" in a new window"},
    {Data::TypeCopyFilenamesToClipboard, L"Copy the names of the selected files to the clipboard"},
    {Data::TypeRunDialog, L"Send the filename \"", Names::CurrentFile, L"\" to the run dialog"},
    {Data::TypeCommandPrompt, L"Open a command prompt starting from \"", Names::CurrentFolder,
     L"\""},
    {Data::TypeCopyTo, L"Copy the selected files to a nominated folder"},
    {Data::TypeMoveTo, L"Move the selected files to a nominated folder"},
    {Data::TypeTaskManager, L"Invoke the Windows task manager"},
    {Data::TypeShowDesktop, L"Minimize all open windows to the desktop"},
    {Data::TypeRestoreDesktop, L"Restore the desktop windows"},
    {Data::TypeCopyToX, L"", Names::Caption, L"", L" Move To", Moves},
    {Data::TypeCopyToX, L"", Names::Caption, L"", L" Copy To"},
};

constexpr Help DesignerHelp[] = {
    {Data::TypeRoot, L"Root Level Shell Description"},
    {Data::TypeFolder, L"Windows Special Folder: ", Names::SpecialFolder, L"", L"",
     IsSpecialFolder},
    {Data::TypeFolder, L"Folder: ", Names::Location},
    {Data::TypeSeparator, L"Menu Separator"},
    {Data::TypePopupMenu, L"Popup Menu"},
    {Data::TypeFile, L"File: ", Names::Location},
    {Data::TypeCustomAction, L"Custom Action: ", Names::Caption},
    {Data::TypeSelectionTask, L"Selection Task: ", Names::Caption},
    {Data::TypeDynamicFolder, L"Dynamic Folder: ", Names::Location},
    {Data::TypeCopyToX, L"Move To: ", Names::Location, L"", L"", Moves},
    {Data::TypeCopyToX, L"Copy To: ", Names::Location},
};

/// The row of an item; one without texts when its type has none.
const Help& FindHelp(std::span<const Help> rows, const Data& item) {
  static constexpr Help NoHelp{0, L""};
  for (const Help& row : rows) {
    if (row.type == item.m_lType && (!row.when || row.when(item))) return row;
  }
  return NoHelp;
}

std::wstring Describe(const Help& help, const Data& item, Shell& shell,
                      const std::wstring& currentFile, const std::wstring& currentFolder) {
  const auto named = [&]() -> std::wstring {
    switch (help.names) {
      case Names::Location:
        return item.Location();
      case Names::Caption:
        return item.Caption();
      case Names::SpecialFolder:
        return GetSpecialFolderName(shell, WindowHandle::None, item.FolderCSIDL(), true);
      case Names::CurrentFile:
        return currentFile;
      case Names::CurrentFolder:
        return currentFolder;
      case Names::Nothing:
        break;
    }
    return {};
  };
  return help.before + named() + help.after;
}

}  // namespace

std::wstring clsOrvaneDataTools::GetMenuCaption(const clsOrvaneData& item, bool& trim) const {
  if (HasCaptionOfTheUser(item)) trim = true;
  std::wstring caption = FullCaption(item);
  return trim ? TrimCaption(std::move(caption), m_options.m_lShellMaxMenuText) : caption;
}

namespace {

/// A cut text without the first half of a character that it ends in.
std::wstring_view WithoutHalfPair(std::wstring_view text) {
  const bool isHalf = !text.empty() && text.back() >= 0xD800 && text.back() < 0xDC00;
  return text.substr(0, text.size() - isHalf);
}

}  // namespace

std::wstring clsOrvaneDataTools::TrimCaption(std::wstring caption, std::int32_t maximum) {
  std::size_t prefix = 0;
  if (caption.starts_with(L'&')) prefix = caption.find(L' ') + 1;  // 0 without a blank
  const std::wstring_view rest = std::wstring_view(caption).substr(prefix);
  if (maximum <= 0 || rest.size() <= static_cast<std::size_t>(maximum)) return caption;
  const std::wstring_view kept =
      Trim(WithoutHalfPair(rest.substr(0, static_cast<std::size_t>(maximum))));
  return caption.substr(0, prefix).append(kept).append(L"...");
}

std::wstring clsOrvaneDataTools::GetExplorerDescription(const clsOrvaneData& item,
                                                        const std::wstring& currentFile,
                                                        const std::wstring& currentFolder) const {
  const Help& help = FindHelp(ExplorerHelp, item);
  const std::wstring text = Describe(help, item, m_shell, currentFile, currentFolder);
  Log(L"szText=", text);
  if (text.empty()) return {};
  std::wstring description = ProductName + std::wstring(help.suffix) + L" - " + text;
  Log(L"szText=", description);
  return description;
}

std::wstring clsOrvaneDataTools::GetDesignerDescription(const clsOrvaneData& item) const {
  return Describe(FindHelp(DesignerHelp, item), item, m_shell, {}, {});
}

}  // namespace orvane
