#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/DataObject.h"
#include "platform/FileSystem.h"
#include "platform/ItemIdList.h"
#include "platform/Shell.h"

namespace orvane {

/// What the menu is for: the folder and the selected items, as the shell handed them over.
struct Selection {
  std::shared_ptr<DataObject> dataObject;  // null without a selection
  std::int32_t count = 0;
  std::wstring onlyItem;  // when exactly one item is selected
  std::wstring folder;    // empty for a virtual folder
  std::wstring file;      // the one selected item, when it is a file

  /// Takes the folder (may be none) and the data object (may be null) in place of what was held.
  /// Returns 0 or the HRESULT with which the data object refused its files. What does not answer in
  /// time is taken for a file that is not there.
  std::int32_t Capture(Shell& shell, FileReader& files, const Patience& patience,
                       const ItemIdList& folderId, std::shared_ptr<DataObject> data);
};

}  // namespace orvane
