#include "designer/ActionList.h"

#include <algorithm>
#include <set>
#include <utility>

#include "designer/MenuFile.h"
#include "designer/ProfileText.h"
#include "support/Error.h"
#include "support/FullPath.h"
#include "support/Text.h"

namespace orvane::designer {
namespace {

constexpr std::int32_t CannotAccess = 75;

[[noreturn]] void Fail(const std::wstring& path, const std::wstring& why) {
  throw Error(CannotAccess, path + why);
}

std::vector<std::wstring> NamesOf(const std::vector<CustomAction>& actions) {
  std::vector<std::wstring> names;
  names.reserve(actions.size());
  for (const CustomAction& action : actions) names.push_back(action.m_szId);
  return names;
}

/// The action of that name, in the same case; null without one.
const CustomAction* Find(const std::vector<CustomAction>& actions, const std::wstring& name) {
  const auto found = std::ranges::find(actions, name, &CustomAction::m_szId);
  return found == actions.end() ? nullptr : &*found;
}

bool IsSameButForOrder(CustomAction a, const CustomAction& b) {
  a.m_lOrder = b.m_lOrder;
  return a == b;
}

}  // namespace

void ActionList::Open(const std::wstring& path) {
  if (!IsFullPath(path))
    Fail(path,
         L" is no full path, so that nobody finds the actions. The setting "
         L"ShellCustomActionsFile names the file.");
  std::optional<Bytes> bytes;
  if (m_files.Attributes(path)) bytes = GetFile(m_files, path);
  if (bytes && bytes->size() > ActionsFile::MaxSize)
    Fail(path, L" is larger than 16 MB and no actions file.");
  const ActionsFile file(bytes ? *bytes : Bytes(), m_services.codePage);
  ActionFindings findings;
  m_actions = m_saved = ReadActions(file, findings);
  m_ofFile = FindUnseen(file);
  m_ofFile.insert(m_ofFile.begin(), findings.begin(), findings.end());
  m_path = path;
  m_bytes = std::move(bytes);
}

ActionFindings ActionList::Findings() const {
  ActionFindings findings = m_ofFile;
  ActionFindings others = CheckActions(m_actions);
  findings.insert(findings.end(), others.begin(), others.end());
  return findings;
}

std::wstring ActionList::FreeName(const std::wstring& wanted) const {
  const auto isTaken = [&](const std::wstring& name) {
    return std::ranges::any_of(m_actions, [&](const CustomAction& action) {
      return EqualIgnoringCase(action.m_szId, name);
    });
  };
  std::wstring name = wanted;
  for (int i = 2; isTaken(name); ++i) name = wanted + L' ' + std::to_wstring(i);
  return name;
}

std::size_t ActionList::Add() {
  CustomAction action;
  action.m_szId = FreeName(L"new action");
  action.m_lType = CustomAction::TypeWindow;
  action.m_lOptions = CustomAction::OptionEnabled;
  if (!m_actions.empty()) action.m_lOrder = m_actions.back().m_lOrder;
  m_actions.push_back(std::move(action));
  return m_actions.size() - 1;
}

std::size_t ActionList::Duplicate(std::size_t place) {
  CustomAction action = m_actions[place];
  action.m_szId = FreeName(action.m_szId);
  m_actions.insert(m_actions.begin() + static_cast<std::ptrdiff_t>(++place), std::move(action));
  return place;
}

std::size_t ActionList::Remove(std::size_t place) {
  m_actions.erase(m_actions.begin() + static_cast<std::ptrdiff_t>(place));
  return place > 0 && place == m_actions.size() ? place - 1 : place;
}

std::size_t ActionList::Move(std::size_t place, bool up) {
  if (up ? place == 0 : place + 1 >= m_actions.size()) return place;
  const std::size_t to = up ? place - 1 : place + 1;
  std::swap(m_actions[place], m_actions[to]);
  return to;
}

void ActionList::CheckNames() const {
  std::set<std::wstring> names;
  for (const CustomAction& action : m_actions) {
    if (Trim(action.m_szId).empty()) Fail(m_path, L" is not saved: an action has no name.");
    if (!names.insert(LowerCase(action.m_szId)).second)
      Fail(m_path, L" is not saved: two actions have the name \"" + action.m_szId + L"\".");
  }
}

/// Whether the code page has all characters of the actions.
bool ActionList::IsAnsiEnough() const {
  return std::ranges::all_of(m_actions, [&](const CustomAction& action) {
    return std::ranges::all_of(
        std::initializer_list<const std::wstring*>{&action.m_szId, &action.m_szDescription,
                                                   &action.m_szExe, &action.m_szClass,
                                                   &action.m_szCaption, &action.m_szActions},
        [&](const std::wstring* text) { return m_services.codePage.Spells(*text); });
  });
}

/// What was read with a number that is none is written too, so that it becomes one.
void ActionList::Edit(clsCustomActions& writer) const {
  for (const CustomAction& before : m_saved) {
    if (!Find(m_actions, before.m_szId)) writer.Delete(before.m_szId, m_path);
  }
  for (const CustomAction& action : m_actions) {
    const CustomAction* before = Find(m_saved, action.m_szId);
    const bool isBad = std::ranges::any_of(m_ofFile, [&](const ActionFinding& finding) {
      return finding.severity == ActionFinding::Severity::Error && finding.action == action.m_szId;
    });
    if (before && *before == action && !isBad) continue;
    static_cast<CustomAction&>(writer) = action;
    writer.Save(m_path);
  }
}

std::vector<CustomAction> ActionList::ActionsOf(const Bytes& bytes) const {
  ActionFindings findings;
  return ReadActions(ActionsFile(bytes, m_services.codePage), findings);
}

ActionList::Bytes ActionList::Written() const {
  Bytes bytes = m_bytes.value_or(Bytes());
  if (IsAnsi(bytes) && !IsAnsiEnough()) bytes = FromAnsi(bytes, m_services.codePage);
  ProfileText text(std::move(bytes), m_services.codePage);
  ActionServices services{m_services.files,    text,
                          m_services.windows,  m_services.process,
                          m_services.keyboard, m_services.clock,
                          m_services.locale,   m_services.boxes,
                          m_services.codePage};
  clsCustomActions writer(services);
  Edit(writer);
  std::vector<std::wstring> names = NamesOf(m_actions);
  if (NamesOf(ActionsOf(text.Bytes())) != names) {
    names.insert(names.begin(), L"");  // it numbers from slot 1 on
    writer.Resequence(names, m_path);
  }
  return text.Bytes();
}

void ActionList::Save() {
  CheckNames();
  Bytes bytes = Written();
  std::vector<CustomAction> saved = ActionsOf(bytes);
  const auto [here, there] = std::ranges::mismatch(m_actions, saved, IsSameButForOrder);
  if (here != m_actions.end() || there != saved.end())
    Fail(m_path, L" is not saved: it cannot hold " +
                     (here == m_actions.end() ? L"the list" : L"\"" + here->m_szId + L"\"") +
                     L" as it is here. Remove line breaks from its texts, and a section [] from "
                     L"the file.");
  if (const auto before = m_files.Read(m_path)) PutFile(m_files, m_path + L".bak", *before);
  PutFile(m_files, m_path, bytes);
  m_ofFile = FindUnseen(ActionsFile(bytes, m_services.codePage));
  m_actions = m_saved = std::move(saved);
  m_bytes = std::move(bytes);
}

}  // namespace orvane::designer
