#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "support/CodePage.h"
#include "support/IniText.h"

namespace orvane {

/// The file of custom actions, read with one read when the object is made. A file that is missing,
/// cannot be read or is no full path holds nothing.
class ActionsFile {
 public:
  ActionsFile(FileReader& files, const CodePage& codePage, const std::wstring& path);

  /// Section names in file order, a name that occurs twice once; an empty name ends the list.
  std::vector<std::wstring> Ids() const;

  /// The whole value; `fallback` when section or key is missing, empty when the value is.
  std::wstring Text(const std::wstring& id, const wchar_t* key, const wchar_t* fallback) const;
  std::int32_t Number(const std::wstring& id, const wchar_t* key, const wchar_t* fallback) const;
  std::int16_t Number16(const std::wstring& id, const wchar_t* key, const wchar_t* fallback) const;

  /// Whether the path says by itself where the file lies. A bare name would be looked for in the
  /// current folder, which may be the one that was right-clicked: whoever can put a file there
  /// could have his keystrokes typed.
  static bool IsFullPath(const std::wstring& path);

 private:
  IniText m_text;
};

}  // namespace orvane
