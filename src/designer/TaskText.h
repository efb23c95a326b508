#pragma once

#include <string>

#include "customactions/clsCustomActions.h"
#include "designer/Sample.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Platform.h"

namespace orvane::designer {

/// What a selection task makes of a sample: its command line and its list file. Selected folders
/// are not walked.
struct TaskText {
  std::wstring commandLine;
  std::wstring fileList;
};

/// Error when a text of the task cannot be understood.
TaskText TaskTextOf(clsOrvaneData task, const Sample& sample, const Platform& platform,
                    const ActionServices& services);

}  // namespace orvane::designer
