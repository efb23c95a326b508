#include "customactions/ActionsFile.h"

#include <algorithm>

#include "support/FullPath.h"
#include "support/Trace.h"

namespace orvane {
namespace {

/// A bare name would be looked for in the current folder, which may be the very folder that was
/// right-clicked: whoever can put a file there would have his keystrokes typed.
std::vector<std::byte> Bytes(FileReader& files, const std::wstring& path) {
  if (!IsFullPath(path)) return {};
  auto bytes = files.Read(path, ActionsFile::MaxSize, Patience::Menu);
  return bytes ? std::move(*bytes) : std::vector<std::byte>();
}

}  // namespace

ActionsFile::ActionsFile(FileReader& files, const CodePage& codePage, const std::wstring& path)
    : m_text(Bytes(files, path), codePage) {
  Log(L"szPath=", path);
}

std::vector<std::wstring> ActionsFile::Ids() const {
  const std::vector<std::wstring>& sections = m_text.Sections();
  return {sections.begin(), std::find(sections.begin(), sections.end(), std::wstring())};
}

std::wstring ActionsFile::GetProfileValue(std::wstring_view id, std::wstring_view key,
                                          std::wstring_view fallback) const {
  const std::wstring* value = m_text.Value(id, key);
  return value ? *value : std::wstring(fallback);
}

}  // namespace orvane
