#include "shellext/Selection.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "menudata/ShellPaths.h"
#include "support/Trace.h"

namespace orvane {

std::int32_t Selection::Capture(Shell& shell, FileReader& files, ItemIdList folder,
                                std::shared_ptr<DataObject> dataObject) {
  *this = Selection();
  m_pidlFolder = std::move(folder);
  if (m_pidlFolder) CurrentFolder = PidlToPath(shell, m_pidlFolder);
  m_pDataObject = std::move(dataObject);
  if (!m_pDataObject) return 0;

  FileNames names;
  if (const std::int32_t failure = m_pDataObject->Files(names); failure != 0) return failure;
  constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
  m_lSelectionCount = static_cast<std::int32_t>(std::min(names.Count(), most));
  if (m_lSelectionCount == 0) return 0;

  std::wstring_view rest = names.All();
  const std::wstring first(FileNames::Take(rest));
  if (m_lSelectionCount == 1) {
    Log(L"m_lSelectionCount=", m_lSelectionCount);
    m_szSelectedItem = first;
    if (FileExists(files, first)) CurrentFile = first;
  }
  if (CurrentFolder.empty()) CurrentFolder = GetFolderOfPath(files, first);
  return 0;
}

}  // namespace orvane
