#include "customactions/clsCustomActions.h"

#include <algorithm>

#include "customactions/ActionsFile.h"
#include "customactions/WindowMatch.h"
#include "customactions/clsProcess.h"
#include "menudata/clsCollection.h"
#include "platform/ProfileFiles.h"
#include "support/FullPath.h"
#include "support/Number.h"
#include "support/Trace.h"

namespace orvane {
namespace {

/// A value is one line: a line break in it would start keys and sections of its own.
std::wstring OneLine(std::wstring text) {
  std::replace_if(
      text.begin(), text.end(), [](wchar_t c) { return c == L'\r' || c == L'\n' || c == L'\0'; },
      L' ');
  return text;
}

std::int32_t Number(const ActionsFile& file, const std::wstring& id, const wchar_t* key,
                    const wchar_t* fallback) {
  return ParseNumber(file.GetProfileValue(id, key, fallback));
}

}  // namespace

const std::wstring& clsCustomActions::PathOr(const std::wstring& szPath) const {
  return szPath.empty() ? Path : szPath;
}

std::int32_t clsCustomActions::LoadEx(std::vector<std::wstring>& szSectionsArray,
                                      std::int32_t lType, const std::wstring& szPath,
                                      bool bIgnoreDisabled) {
  TraceScope scope(L"LoadEx");
  Log(L"lType=", lType, L"  szPath=", szPath, L"  bIgnoreDisabled=", bIgnoreDisabled);
  const ActionsFile file(m_services.files, m_services.codePage, PathOr(szPath));
  return LoadEx(szSectionsArray, lType, file, bIgnoreDisabled);
}

std::int32_t clsCustomActions::LoadEx(std::vector<std::wstring>& szSectionsArray,
                                      std::int32_t lType, const ActionsFile& file,
                                      bool bIgnoreDisabled) {
  clsCollection actions;
  for (const std::wstring& id : file.Ids()) {
    if (lType != TypeAny && Number(file, id, L"Type", L"-1") != lType) continue;
    if (bIgnoreDisabled && !(Number(file, id, L"Options", L"0") & OptionEnabled)) continue;
    actions.Add(id, Number(file, id, L"Order", L"0"));
  }
  // The sort gives the largest Order first and equal ones from the file's end; read from its own
  // end it ascends, with equal ones as they stand in the file.
  const std::vector<std::int32_t> positions = actions.Sort_Bubble(L"m_lKey");
  szSectionsArray.clear();
  for (std::size_t i = positions.size(); i-- > 1;)
    szSectionsArray.push_back(actions.Item(positions[i])->m_szKey);
  return actions.Count();
}

std::int32_t clsCustomActions::Count(std::int32_t lType, const std::wstring& szPath,
                                     const Patience& patience) {
  TraceScope scope(L"Count");
  Log(L"lType=", lType, L"  szPath=", szPath);
  const ActionsFile file(m_services.files, m_services.codePage, PathOr(szPath), patience);
  const std::vector<std::wstring> ids = file.Ids();
  return static_cast<std::int32_t>(std::count_if(ids.begin(), ids.end(), [&](const auto& id) {
    return lType == TypeAny || Number(file, id, L"Type", L"-1") == lType;
  }));
}

bool clsCustomActions::Load(const std::wstring& szId, const std::wstring& szPath) {
  TraceScope scope(L"Load");
  Log(L"szId=", szId, L"  szPath=", szPath);
  return Load(szId, ActionsFile(m_services.files, m_services.codePage, PathOr(szPath)));
}

bool clsCustomActions::Load(const std::wstring& szId, const ActionsFile& file) {
  m_szId = szId;
  static_cast<CustomAction&>(*this) = file.Action(
      szId, [](const wchar_t*, const std::wstring& text) { return ParseNumber16(text); });
  return !m_szDescription.empty();
}

void clsCustomActions::Write(const std::wstring& szId, const wchar_t* key,
                             const std::wstring& value, const std::wstring& szPath) {
  const std::wstring& path = PathOr(szPath);
  if (IsFullPath(path)) m_services.profiles.Write(path, OneLine(szId), key, OneLine(value));
}

void clsCustomActions::Save(const std::wstring& szPath) {
  TraceScope scope(L"Save");
  Log(L"szPath=", szPath);
  Delete(m_szId, szPath);  // so that the keys stand in this order whatever was there
  const auto write = [&](const wchar_t* key, const std::wstring& value) {
    Write(m_szId, key, value, szPath);
  };
  write(L"Type", std::to_wstring(m_lType));
  write(L"Order", std::to_wstring(m_lOrder));
  write(L"Description", m_szDescription);
  write(L"Exe", m_szExe);
  write(L"ExeMatch", std::to_wstring(m_lExeMatch));
  write(L"Caption", m_szCaption);
  write(L"CaptionMatch", std::to_wstring(m_lCaptionMatch));
  write(L"Class", m_szClass);
  write(L"ClassMatch", std::to_wstring(m_lClassMatch));
  write(L"Actions", m_szActions);
  write(L"Options", std::to_wstring(m_lOptions));
}

void clsCustomActions::Delete(const std::wstring& szId, const std::wstring& szPath) {
  TraceScope scope(L"Delete");
  Log(L"szId=", szId, L"  szPath=", szPath);
  const std::wstring& path = PathOr(szPath);
  if (IsFullPath(path)) m_services.profiles.Write(path, OneLine(szId), {}, {});
}

void clsCustomActions::Resequence(const std::vector<std::wstring>& szIds,
                                  const std::wstring& szPath) {
  TraceScope scope(L"Resequence");
  Log(L"szPath=", szPath);
  for (std::size_t i = 1; i < szIds.size(); ++i)
    Write(szIds[i], L"Order", std::to_wstring(i), szPath);
}

WindowHandle clsCustomActions::MatchWindow(WindowHandle hWnd, const std::wstring& szPath) {
  TraceScope scope(L"MatchWindow");
  Log(L"hWnd=", Hex(hWnd), L"  szPath=", szPath);
  const ActionsFile file(m_services.files, m_services.codePage, PathOr(szPath));
  std::vector<std::wstring> ids;
  if (LoadEx(ids, TypeWindow, file, true) == 0) return WindowHandle::None;

  const MatchTarget target = LookAtWindow(m_services.windows, m_services.process, hWnd);
  const bool matched = std::any_of(ids.begin(), ids.end(), [&](const std::wstring& id) {
    return MatchWindow_(id, file, target);
  });
  const WindowHandle result = matched ? hWnd : WindowHandle::None;
  Log(L"MatchWindow=", Hex(result));
  return result;
}

bool clsCustomActions::MatchWindow_(const std::wstring& szId, const ActionsFile& file,
                                    const MatchTarget& target) {
  TraceScope scope(L"MatchWindow_");
  Load(szId, file);
  Log(L"m_szId=", m_szId, L"  m_szDescription=", m_szDescription);
  const auto isUsed = [&](const Criterion& criterion) { return IsUsed(*this, criterion); };
  const bool matched =
      std::ranges::any_of(Criteria, isUsed) &&
      std::ranges::all_of(Criteria, [&](const Criterion& criterion) {
        return !isUsed(criterion) || PassingValue(*this, criterion, target) != nullptr;
      });
  Log(L"MatchWindow_=", matched);
  return matched;
}

}  // namespace orvane
