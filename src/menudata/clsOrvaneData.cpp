#include "menudata/clsOrvaneData.h"

#include <utility>

#include "support/Number.h"

namespace orvane {
namespace {

using Field = FieldText clsOrvaneData::*;

struct Views {
  std::int32_t type;
  Field caption;
  Field location;
};

constexpr Views ViewsByType[] = {
    {clsOrvaneData::TypeRoot, &clsOrvaneData::m_szRoot_Caption, nullptr},
    {clsOrvaneData::TypeFolder, &clsOrvaneData::m_szFolder_Caption,
     &clsOrvaneData::m_szFolder_Location},
    {clsOrvaneData::TypePopupMenu, &clsOrvaneData::m_szPopupMenu_caption, nullptr},
    {clsOrvaneData::TypeFile, &clsOrvaneData::m_szFile_Caption, &clsOrvaneData::m_szFile_Location},
    {clsOrvaneData::TypeCustomAction, &clsOrvaneData::m_szAction_Caption, nullptr},
    {clsOrvaneData::TypeSelectionTask, &clsOrvaneData::m_szSelection_Caption,
     &clsOrvaneData::m_szSelection_WorkingDir},
    {clsOrvaneData::TypeDynamicFolder, &clsOrvaneData::m_szDFolder_Caption,
     &clsOrvaneData::m_szDFolder_Location},
    {clsOrvaneData::TypeCopyToX, &clsOrvaneData::m_szCopyToX_Caption,
     &clsOrvaneData::m_szCopyToX_Location},
};

Field FieldOf(std::int32_t type, Field Views::*view) {
  for (const Views& views : ViewsByType) {
    if (views.type == type) return views.*view;
  }
  return nullptr;
}

}  // namespace

const FieldText& clsOrvaneData::Caption() const {
  const Field field = FieldOf(m_lType, &Views::caption);
  return field ? this->*field : m_none;
}

void clsOrvaneData::Caption(FieldText caption) {
  if (const Field field = FieldOf(m_lType, &Views::caption)) this->*field = std::move(caption);
}

const FieldText& clsOrvaneData::Location() const {
  const Field field = FieldOf(m_lType, &Views::location);
  return field ? this->*field : m_none;
}

void clsOrvaneData::Location(FieldText location) {
  if (const Field field = FieldOf(m_lType, &Views::location)) this->*field = std::move(location);
}

std::int32_t clsOrvaneData::FolderCSIDL() const {
  if (std::wstring_view(m_szFolder_Location).find_first_not_of(L' ') == std::wstring::npos)
    return 0;
  return ParseNumber(m_szFolder_Location);
}

void clsOrvaneData::FolderCSIDL(std::int32_t csidl) {
  m_szFolder_Location = std::to_wstring(csidl);
}

}  // namespace orvane
