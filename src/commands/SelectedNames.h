#pragma once

#include "platform/DataObject.h"
#include "support/Error.h"

namespace orvane {

/// The names of a selection; none of no selection. Error, with the data object's HRESULT, when it
/// does not give them.
inline FileNames SelectedNames(DataObject* dataObject) {
  FileNames names;
  const std::int32_t failure = dataObject ? dataObject->Files(names) : 0;
  if (failure != 0) throw Error(failure, L"The selection cannot be read");
  return names;
}

}  // namespace orvane
