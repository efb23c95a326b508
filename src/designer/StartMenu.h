#pragma once

#include <string>
#include <vector>

#include "platform/Platform.h"

namespace orvane::designer {

/// A program as the Start menu has it.
struct StartProgram {
  std::wstring name;    // "Editor"
  std::wstring folder;  // of the Start menu, "Tools\Text"; empty at its top
  std::wstring path;    // of the shortcut

  /// "Editor (Tools\Text)".
  std::wstring Text() const;
};

/// The programs of the user's Start menu and of all users', by name. The walk is bounded in depth,
/// number and patience: what lies beyond is left out.
std::vector<StartProgram> StartMenuPrograms(const Platform& platform);

/// Those whose text has all the words, in any case.
std::vector<StartProgram> WithWords(const std::vector<StartProgram>& programs,
                                    const std::wstring& words);

}  // namespace orvane::designer
