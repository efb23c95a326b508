#include "menudoc/CheckMenu.h"

#include <algorithm>
#include <utility>

#include "menudoc/ItemKinds.h"
#include "menudoc/MenuTree.h"

namespace orvane {
namespace {

class Checker {
 public:
  explicit Checker(const MenuDocument& menu) : m_menu(menu) {}

  std::vector<Finding> Run() {
    for (m_item = 0; m_item < m_menu.items.size(); ++m_item) CheckParent();
    return std::move(m_findings);
  }

 private:
  const clsOrvaneData& Item() const { return m_menu.items[m_item].data; }

  void Report(Finding::Severity severity, std::string_view field, std::string text,
              std::string remedy) {
    m_findings.push_back(
        {severity, m_item, std::string(field), {}, std::move(text), std::move(remedy)});
  }

  void CheckParent() {
    const ItemKind* kind = FindKind(Item().m_lType);
    const bool hasItems = EndOfItem(m_menu, m_item) > m_item + 1;
    if (hasItems && !(kind && kind->holdsItems))
      Report(Finding::Severity::Error, "items", "is no popup and cannot hold items",
             "Move the items out, or make it a popup.");
  }

  const MenuDocument& m_menu;
  std::size_t m_item = 0;
  std::vector<Finding> m_findings;
};

void AddPlaces(const MenuDocument& menu, std::vector<Finding>& findings) {
  if (findings.empty()) return;
  const std::vector<std::string> places = PlacesOf(menu);
  for (Finding& finding : findings) {
    if (finding.item != Finding::NoItem) finding.place = places[finding.item];
    if (!finding.field.empty()) finding.place += "/" + finding.field;
  }
}

}  // namespace

std::vector<Finding> CheckMenu(const MenuDocument& menu, const MenuSurroundings&) {
  std::vector<Finding> findings = Checker(menu).Run();
  AddPlaces(menu, findings);
  return findings;
}

bool HasErrors(const std::vector<Finding>& findings) {
  return std::ranges::any_of(
      findings, [](const Finding& f) { return f.severity == Finding::Severity::Error; });
}

}  // namespace orvane
