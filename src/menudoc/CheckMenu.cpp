#include "menudoc/CheckMenu.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "menudoc/CheckItem.h"
#include "menudoc/ItemKinds.h"
#include "menudoc/MenuTree.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using Severity = Finding::Severity;

/// The letter that chooses an entry; 0 for none.
wchar_t MnemonicOf(std::wstring_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != L'&') continue;
    if (caption[++i] != L'&') return LowerCase(caption[i]);
  }
  return 0;
}

/// What is wrong with the tree, item by item; CheckItem looks into each.
class TreeCheck {
 public:
  TreeCheck(const MenuDocument& menu, const MenuSurroundings& surroundings)
      : m_menu(menu),
        m_surroundings(surroundings),
        m_itemCheck(surroundings),
        m_depths(DepthsOf(menu)) {}

  std::vector<Finding> Run() {
    for (m_item = 0; m_item < m_menu.items.size(); ++m_item) {
      CheckPlace();
      if (!Item().IsTypeRoot()) CheckMnemonic();
      for (Finding& finding : m_itemCheck.Check(Item())) Report(std::move(finding));
      if (m_surroundings.reached) m_surroundings.reached(m_item, m_menu.items.size());
    }
    return std::move(m_findings);
  }

 private:
  const clsOrvaneData& Item() const { return m_menu.items[m_item].data; }

  void Report(Finding finding) {
    finding.item = m_item;
    m_findings.push_back(std::move(finding));
  }

  void CheckPlace() {
    const ItemKind* kind = FindKind(Item().m_lType);
    const std::size_t end = m_item + 1;
    const bool hasItems =
        end < m_menu.items.size() && m_menu.items[end].parent == static_cast<std::int32_t>(end);
    if (hasItems && !(kind && kind->holdsItems))
      Report({.field = "items",
              .text = "is no popup and cannot hold items",
              .remedy = "Move the items out, or make it a popup."});
    if (!hasItems && Item().IsTypePopupMenu())
      Report({.severity = Severity::Warning,
              .text = "is a popup with nothing in it",
              .remedy = "Put items into it, or take it out."});
    if (m_depths[m_item] > MaxDepth)
      Report({.text = "lies in more than " + std::to_string(MaxDepth) + " popups",
              .remedy = "Move it further up."});
  }

  void CheckMnemonic() {
    const wchar_t letter = MnemonicOf(Item().Caption());
    if (letter == 0) return;
    const auto [first, isNew] =
        m_letters.try_emplace({m_menu.items[m_item].parent, letter}, m_item);
    if (isNew) return;
    const clsOrvaneData& other = m_menu.items[first->second].data;
    Report({.severity = Severity::Warning,
            .field = "caption",
            .text = "has the letter " + ToUtf8({&letter, 1}) + " of \"" + ToUtf8(other.Caption()) +
                    "\" beside it",
            .remedy = "Put the & before another letter of one of the two."});
  }

  const MenuDocument& m_menu;
  const MenuSurroundings& m_surroundings;
  CheckItem m_itemCheck;
  std::vector<int> m_depths;
  std::map<std::pair<std::int32_t, wchar_t>, std::size_t> m_letters;  // by parent and letter
  std::size_t m_item = 0;
  std::vector<Finding> m_findings;
};

}  // namespace

std::vector<Finding> CheckMenu(const MenuDocument& menu, const MenuSurroundings& surroundings) {
  std::vector<Finding> findings = TreeCheck(menu, surroundings).Run();
  if (findings.empty()) return findings;
  const std::vector<std::string> places = PlacesOf(menu);
  for (Finding& finding : findings) {
    finding.place = places[finding.item];
    if (!finding.field.empty()) finding.place += "/" + finding.field;
  }
  return findings;
}

void CheckParsed(ParsedMenu& parsed, const MenuSurroundings& surroundings) {
  std::vector<Finding> findings = TreeCheck(parsed.menu, surroundings).Run();
  std::set<std::string> unread;
  for (const Finding& finding : parsed.findings) unread.insert(finding.place);
  for (Finding& finding : findings) {
    PlaceInText(finding, parsed);
    // What was taken for something that could not be read needs no words. An include's place is
    // that of all its items.
    const bool isIncluded = finding.place.ends_with("/include");
    if (isIncluded || !unread.contains(finding.place))
      parsed.findings.push_back(std::move(finding));
  }
}

bool HasErrors(const std::vector<Finding>& findings) {
  return std::ranges::find(findings, Severity::Error, &Finding::severity) != findings.end();
}

}  // namespace orvane
