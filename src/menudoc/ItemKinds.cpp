#include "menudoc/ItemKinds.h"

#include <algorithm>

namespace orvane {
namespace {

using Data = clsOrvaneData;
using Use = FieldUse;

constexpr NamedBit OptionBits[] = {
    {"leaf", Data::OptionsLeaf, "Kept for the designer; the menu does not look at it."},
    {"exploreInNewWindow", Data::OptionsExploreInNewWindow,
     "The folder opens in a window of its own."},
    {"csidl", Data::OptionsCSIDL,
     "The location is the number of a special folder of Windows, not a path."},
    {"browseAndOpen", Data::OptionsBrowseAndOpen,
     "A dialog lets the user pick a file of the folder, which is then opened."},
};

constexpr NamedBit SelectionBits[] = {
    {"showAlways", Data::SelectionOptions_ShowAlways, "Shown for one or more selected files."},
    {"showSingle", Data::SelectionOptions_ShowSingle, "Shown for exactly one selected file."},
    {"showMultiple", Data::SelectionOptions_ShowMultiple, "Shown for two or more selected files."},
    {"recurse", Data::SelectionOptions_Recurse,
     "Takes everything below selected folders too, with a progress window."},
    {"clipboard", Data::SelectionOptions_Clipboard, "Puts the file list on the clipboard."},
    {"fullPaths", Data::SelectionOptions_FQP,
     "Kept for the designer; names are always full paths."},
    {"quoteIfBlank", Data::SelectionOptions_QIS,
     "Puts names that contain a blank in double quotes."},
    {"shortNames", Data::SelectionOptions_ShortNames, "Gives names in their short (8.3) form."},
};

constexpr NamedBit CopyBits[] = {
    {"move", Data::CopyToXOptions_Move, "Moves the files instead of copying them."},
};

constexpr ItemField Options = {"options", &Data::m_lOptions, Use::Bits,
                               "Bits of the item itself, by name or number.", OptionBits};

constexpr ItemField Root[] = {
    {"caption", &Data::m_szRoot_Caption, Use::Caption, "The entry in the shell's menu."}};

constexpr ItemField Folder[] = {
    {"caption", &Data::m_szFolder_Caption, Use::Caption, "The entry's text."},
    {"location", &Data::m_szFolder_Location, Use::Folder,
     "The folder's path or, with the option csidl, the number of a special folder."}};

constexpr ItemField Popup[] = {
    {"caption", &Data::m_szPopupMenu_caption, Use::Caption, "The entry's text."}};

constexpr ItemField File[] = {
    {"caption", &Data::m_szFile_Caption, Use::Caption, "The entry's text."},
    {"location", &Data::m_szFile_Location, Use::File, "Path of the document or program to open."}};

constexpr ItemField CustomAction[] = {
    {"caption", &Data::m_szAction_Caption, Use::Caption, "The entry's text."},
    {"actions", &Data::m_szAction_Actions, Use::Script, "The script of keystrokes to play."}};

constexpr ItemField SelectionTask[] = {
    {"caption", &Data::m_szSelection_Caption, Use::Caption, "The entry's text."},
    {"workingDir", &Data::m_szSelection_WorkingDir, Use::Folder,
     "The folder in which the command is started."},
    {"command", &Data::m_szSelection_Command, Use::Program,
     "The program or document to start; nothing is started without one."},
    {"parameters", &Data::m_szSelection_Parms, Use::Template,
     "The command's parameters; tokens in it stand for the selection."},
    {"commandPrefix", &Data::m_szSelection_CmdPrefix, Use::Affix,
     "Stands before each name in the command line."},
    {"commandSuffix", &Data::m_szSelection_CmdSuffix, Use::Affix,
     "Stands after each name in the command line."},
    {"file", &Data::m_szSelection_File, Use::File,
     "Path of the file that the file list is written to; none is written without one."},
    {"filePrefix", &Data::m_szSelection_FilePrefix, Use::Affix,
     "Stands before each name in the file list."},
    {"fileSuffix", &Data::m_szSelection_FileSuffix, Use::Affix,
     "Stands after each name in the file list."},
    {"filter", &Data::m_szSelection_Filter, Use::Filter,
     "Patterns of the names that qualify, with commas between them; all names without one."},
    {"selectionOptions", &Data::m_lSelection_Options, Use::Bits,
     "When the task is shown and how it treats names.", SelectionBits}};

constexpr ItemField DynamicFolder[] = {
    {"caption", &Data::m_szDFolder_Caption, Use::Caption, "The entry's text."},
    {"location", &Data::m_szDFolder_Location, Use::Folder, "Path of the folder to list."},
    {"filter", &Data::m_szDFolder_Filter, Use::Filter,
     "Patterns of the files to list, with commas between them; all files without one."},
    {"folderOptions", &Data::m_lDFolder_Options, Use::Bits,
     "Kept as it is; no bit has a meaning."}};

constexpr ItemField CopyTo[] = {
    {"caption", &Data::m_szCopyToX_Caption, Use::Caption, "The entry's text."},
    {"location", &Data::m_szCopyToX_Location, Use::Folder, "Path of the folder to copy to."},
    {"copyOptions", &Data::m_lCopyToX_Options, Use::Bits, "Whether the files are moved.",
     CopyBits}};

constexpr ItemKind Kinds[] = {
    {"root", Data::TypeRoot,
     "A further root; the document itself is the first one. The last one names the shell's entry.",
     true, Root},
    {"folder", Data::TypeFolder, "Opens a folder.", false, Folder},
    {"popup", Data::TypePopupMenu, "A submenu.", true, Popup},
    {"separator", Data::TypeSeparator, "A line between entries.", false, {}},
    {"file", Data::TypeFile, "Opens a document or starts a program.", false, File},
    {"customAction", Data::TypeCustomAction,
     "Plays a script of keystrokes into the window that the menu was opened from.", false,
     CustomAction},
    {"selectionTask", Data::TypeSelectionTask,
     "Hands the names of the selected files to a program, a file or the clipboard.", false,
     SelectionTask},
    {"dynamicFolder", Data::TypeDynamicFolder, "A submenu that lists a folder when it is opened.",
     false, DynamicFolder},
    {"copyTo", Data::TypeCopyToX, "Copies or moves the selected files to a folder.", false, CopyTo},
};

template <class Range, class Key, class Member>
auto Find(const Range& rows, const Key& key, Member member) -> decltype(&*std::begin(rows)) {
  const auto found = std::ranges::find(rows, key, member);
  return found == std::end(rows) ? nullptr : &*found;
}

template <class Key, class Member>
const ItemField* FindFieldBy(std::int32_t type, const Key& key, Member member) {
  if (Options.*member == key) return &Options;
  const ItemKind* kind = FindKind(type);
  return kind ? Find(kind->fields, key, member) : nullptr;
}

}  // namespace

std::span<const ItemKind> ItemKinds() {
  return Kinds;
}

const ItemField& OptionsField() {
  return Options;
}

const ItemKind* FindKind(std::int32_t type) {
  return Find(Kinds, type, &ItemKind::type);
}

const ItemKind* FindKind(std::string_view name) {
  return Find(Kinds, name, &ItemKind::name);
}

const ItemField* FindField(std::int32_t type, std::string_view name) {
  return FindFieldBy(type, name, &ItemField::name);
}

const ItemField* FindField(std::int32_t type, const DataField& value) {
  return FindFieldBy(type, value, &ItemField::value);
}

}  // namespace orvane
