#include "commands/Selection.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "menudata/ShellPaths.h"
#include "support/Trace.h"

namespace orvane {

std::int32_t Selection::Capture(Shell& shell, FileReader& files, const Patience& patience,
                                const ItemIdList& folderId, std::shared_ptr<DataObject> data) {
  *this = Selection();
  if (folderId) folder = PidlToPath(shell, folderId);
  dataObject = std::move(data);
  if (!dataObject) return 0;

  FileNames names;
  if (const std::int32_t failure = dataObject->Files(names); failure != 0) return failure;
  constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
  count = static_cast<std::int32_t>(std::min(names.Count(), most));
  if (count == 0) return 0;

  std::wstring_view rest = names.All();
  const std::wstring first(FileNames::Take(rest));
  if (count == 1) {
    Log(L"m_lSelectionCount=", count);
    onlyItem = first;
    if (FileExists(files, first, patience)) file = first;
  }
  if (folder.empty()) folder = GetFolderOfPath(files, first, patience);
  return 0;
}

}  // namespace orvane
