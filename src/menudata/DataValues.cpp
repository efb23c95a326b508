#include "menudata/DataValues.h"

namespace orvane {
namespace {

using Data = clsOrvaneData;

constexpr DataField Root[] = {&Data::m_szRoot_Caption};

constexpr DataField Folder[] = {&Data::m_szFolder_Location, &Data::m_szFolder_Caption};

constexpr DataField PopupMenu[] = {&Data::m_szPopupMenu_caption};

constexpr DataField File[] = {&Data::m_szFile_Location, &Data::m_szFile_Caption};

constexpr DataField CustomAction[] = {&Data::m_szAction_Actions, &Data::m_szAction_Caption};

constexpr DataField SelectionTask[] = {
    &Data::m_szSelection_WorkingDir, &Data::m_szSelection_Caption,
    &Data::m_szSelection_Command,    &Data::m_szSelection_Parms,
    &Data::m_szSelection_CmdPrefix,  &Data::m_szSelection_CmdSuffix,
    &Data::m_szSelection_File,       &Data::m_szSelection_FilePrefix,
    &Data::m_szSelection_FileSuffix, &Data::m_szSelection_Filter,
    &Data::m_lSelection_Options};

constexpr DataField DynamicFolder[] = {&Data::m_szDFolder_Location, &Data::m_szDFolder_Caption,
                                       &Data::m_szDFolder_Filter, &Data::m_lDFolder_Options};

constexpr DataField CopyToX[] = {&Data::m_szCopyToX_Location, &Data::m_szCopyToX_Caption,
                                 &Data::m_lCopyToX_Options};

struct Type {
  std::int32_t type;
  std::span<const DataField> values;
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

std::span<const DataField> DataValuesOf(std::int32_t type) {
  for (const Type& candidate : Types) {
    if (candidate.type == type) return candidate.values;
  }
  return {};
}

}  // namespace orvane
