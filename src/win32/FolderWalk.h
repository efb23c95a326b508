#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "platform/FileSystem.h"
#include "win32/UniqueHandle.h"

namespace orvane::win32 {

/// The find calls of one folder. Starting it makes the first one, which opens the folder.
class FolderWalk {
 public:
  FolderWalk() = default;
  explicit FolderWalk(const std::wstring& pattern);

  /// 0, or why the folder cannot be listed. An empty root folder, which has not even the two dots
  /// to find, can.
  DWORD Failure() const { return m_handle || m_error == ERROR_FILE_NOT_FOUND ? 0 : m_error; }

  /// The next entry, without the two dots; false at the end, and where the walk breaks off.
  bool Next(FoundFile& found);
  bool IsWhole() const { return m_error == ERROR_NO_MORE_FILES || m_error == ERROR_FILE_NOT_FOUND; }

 private:
  bool Step();

  WIN32_FIND_DATAW m_data{};
  UniqueFindHandle m_handle;  // after the data, which opening it fills
  bool m_waiting = false;     // the first step's entry has not been given out
  DWORD m_error = ERROR_SEM_TIMEOUT;
};

/// Takes the walk over. With a patience, which outlives the listing, the folder lies on a network:
/// entries are then fetched many at a time, and no longer waited for than the patience lasts.
std::unique_ptr<DirectoryListing> MakeListing(FolderWalk walk, const std::wstring& folder,
                                              const Patience* patience);

}  // namespace orvane::win32
