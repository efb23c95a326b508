#include "commands/TaskLists.h"

#include "support/Text.h"

namespace orvane {

TaskLists::TaskLists(const clsOrvaneData& task, bool shortNames)
    : m_task(task),
      m_quotes(!shortNames && task.SelectionOptions_IsQIS() != 0),
      m_filter(task.m_szSelection_Filter) {}

void TaskLists::Reserve(std::size_t names, std::size_t characters) {
  const auto reserve = [&](std::wstring& list, const FieldText& prefix, const FieldText& suffix) {
    list.reserve(characters + names * (prefix.size() + suffix.size()));
  };
  reserve(m_szCmdLine, m_task.m_szSelection_CmdPrefix, m_task.m_szSelection_CmdSuffix);
  reserve(m_szFile, m_task.m_szSelection_FilePrefix, m_task.m_szSelection_FileSuffix);
}

void TaskLists::Add(const WrittenName& written, std::wstring_view found, bool isFolder) {
  if (Filters() && (isFolder || !m_filter.Matches(LowerCase(found)))) return;
  const std::wstring_view quote = m_quotes && written.Has(L' ') ? L"\"" : L"";
  const auto wrap = [&](std::wstring& list, std::wstring_view prefix, std::wstring_view end,
                        std::wstring_view suffix) {
    AppendTo(list, prefix, quote, written.folder, written.name, end, quote, suffix);
  };
  // No file can bear a quotation mark; in a name made up by another program it would end the quotes
  // around the name and add arguments of its own.
  if (!written.Has(L'"')) {
    // After a drive's backslash a quotation mark would be a character like any other.
    const std::wstring_view suffix = m_task.m_szSelection_CmdSuffix;
    const bool isQuoted = !quote.empty() || suffix.starts_with(L'"');
    const std::wstring_view end = isQuoted && written.EndsWith(L'\\') ? L"\\" : L"";
    wrap(m_szCmdLine, m_task.m_szSelection_CmdPrefix, end, suffix);
  }
  wrap(m_szFile, m_task.m_szSelection_FilePrefix, L"", m_task.m_szSelection_FileSuffix);
}

}  // namespace orvane
