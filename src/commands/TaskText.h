#pragma once

#include <string>

#include "customactions/clsCustomActions.h"
#include "menudata/clsOrvaneData.h"
#include "platform/DataObject.h"
#include "platform/FileSystem.h"

namespace orvane {

/// What a selection task makes of a selection; nothing is done with it.
struct TaskText {
  std::wstring parameters;
  std::wstring fileList;
  bool isWhole = true;  // false when some folders could not be read

  /// The program with its parameters; empty for a task that starts none.
  std::wstring CommandLine(const clsOrvaneData& task) const;
};

/// `recursive` walks selected folders. Error when a text of the task cannot be understood.
TaskText TaskTextOf(clsOrvaneData task, DataObject& selection, bool recursive, FileReader& files,
                    const ActionServices& services);

/// Replaces the backslash escapes of the task's prefixes and suffixes.
void TreatBackSlashes(clsOrvaneData& task, const CodePage& codePage);

/// The task's parameters with the selected names in their place.
std::wstring TaskParameters(const clsOrvaneData& task, const std::wstring& selection,
                            const ActionServices& services);

}  // namespace orvane
