#include "menudata/DataValues.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

constexpr DataValue Root[] = {{"caption", &Data::m_szRoot_Caption}};

constexpr DataValue Folder[] = {{"location", &Data::m_szFolder_Location},
                                {"caption", &Data::m_szFolder_Caption}};

constexpr DataValue PopupMenu[] = {{"caption", &Data::m_szPopupMenu_caption}};

constexpr DataValue File[] = {{"location", &Data::m_szFile_Location},
                              {"caption", &Data::m_szFile_Caption}};

constexpr DataValue CustomAction[] = {{"actions", &Data::m_szAction_Actions},
                                      {"caption", &Data::m_szAction_Caption}};

constexpr DataValue SelectionTask[] = {{"workingDir", &Data::m_szSelection_WorkingDir},
                                       {"caption", &Data::m_szSelection_Caption},
                                       {"command", &Data::m_szSelection_Command},
                                       {"parameters", &Data::m_szSelection_Parms},
                                       {"commandPrefix", &Data::m_szSelection_CmdPrefix},
                                       {"commandSuffix", &Data::m_szSelection_CmdSuffix},
                                       {"file", &Data::m_szSelection_File},
                                       {"filePrefix", &Data::m_szSelection_FilePrefix},
                                       {"fileSuffix", &Data::m_szSelection_FileSuffix},
                                       {"filter", &Data::m_szSelection_Filter},
                                       {"selectionOptions", &Data::m_lSelection_Options}};

constexpr DataValue DynamicFolder[] = {{"location", &Data::m_szDFolder_Location},
                                       {"caption", &Data::m_szDFolder_Caption},
                                       {"filter", &Data::m_szDFolder_Filter},
                                       {"folderOptions", &Data::m_lDFolder_Options}};

constexpr DataValue CopyToX[] = {{"location", &Data::m_szCopyToX_Location},
                                 {"caption", &Data::m_szCopyToX_Caption},
                                 {"copyOptions", &Data::m_lCopyToX_Options}};

struct Type {
  std::int32_t type;
  std::span<const DataValue> values;
};

constexpr Type Types[] = {
    {Data::TypeRoot, Root},
    {Data::TypeFolder, Folder},
    {Data::TypePopupMenu, PopupMenu},
    {Data::TypeFile, File},
    {Data::TypeCustomAction, CustomAction},
    {Data::TypeSelectionTask, SelectionTask},
    {Data::TypeDynamicFolder, DynamicFolder},
    {Data::TypeCopyToX, CopyToX},
};

}  // namespace

std::span<const DataValue> DataValuesOf(std::int32_t type) {
  for (const Type& candidate : Types) {
    if (candidate.type == type) return candidate.values;
  }
  return {};
}

}  // namespace orvane
