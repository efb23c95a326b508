#include "customactions/ActionsFile.h"

#include <algorithm>

#include "support/FullPath.h"
#include "support/Trace.h"

namespace orvane {
namespace {

/// A bare name would be looked for in the current folder, which may be the very folder that was
/// right-clicked: whoever can put a file there would have his keystrokes typed.
std::vector<std::byte> Bytes(FileReader& files, const std::wstring& path,
                             const Patience& patience) {
  if (!IsFullPath(path)) return {};
  auto bytes = files.Read(path, ActionsFile::MaxSize, patience);
  return bytes ? std::move(*bytes) : std::vector<std::byte>();
}

}  // namespace

ActionsFile::ActionsFile(FileReader& files, const CodePage& codePage, const std::wstring& path,
                         const Patience& patience)
    : m_text(Bytes(files, path, patience), codePage) {
  Log(L"szPath=", path);
}

std::vector<std::wstring> ActionsFile::Ids() const {
  const std::vector<std::wstring>& sections = m_text.Sections();
  return {sections.begin(), std::find(sections.begin(), sections.end(), std::wstring())};
}

std::vector<std::wstring> ActionsFile::Unseen() const {
  const std::vector<std::wstring>& sections = m_text.Sections();
  const auto end = std::find(sections.begin(), sections.end(), std::wstring());
  std::vector<std::wstring> names = m_text.Repeated();
  if (end != sections.end()) names.insert(names.end(), end + 1, sections.end());
  return names;
}

CustomAction ActionsFile::Action(const std::wstring& id, const ReadNumber& readNumber) const {
  const auto text = [&](const wchar_t* key) { return GetProfileValue(id, key, L""); };
  const auto number = [&](const wchar_t* key, const wchar_t* fallback) {
    return readNumber(key, GetProfileValue(id, key, fallback));
  };
  CustomAction action;
  action.m_szId = id;
  action.m_lType = number(L"Type", L"-1");
  action.m_lOrder = number(L"Order", L"0");
  action.m_szDescription = text(L"Description");
  action.m_szExe = text(L"Exe");
  action.m_lExeMatch = number(L"ExeMatch", L"0");
  action.m_szClass = text(L"Class");
  action.m_lClassMatch = number(L"ClassMatch", L"0");
  action.m_szCaption = text(L"Caption");
  action.m_lCaptionMatch = number(L"CaptionMatch", L"0");
  action.m_szActions = text(L"Actions");
  action.m_lOptions = number(L"Options", L"0");
  return action;
}

std::wstring ActionsFile::GetProfileValue(std::wstring_view id, std::wstring_view key,
                                          std::wstring_view fallback) const {
  const std::wstring* value = m_text.Value(id, key);
  return value ? *value : std::wstring(fallback);
}

}  // namespace orvane
