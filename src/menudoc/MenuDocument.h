#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "menudata/Definition.h"
#include "menudoc/DocumentSources.h"
#include "menudoc/Finding.h"

namespace orvane {

/// A menu as the readable document and the designer have it: a definition whose items stand in tree
/// order, so that all that lies below an item follows it at once. Every item's parent (1-based, 0
/// for none) stands before it. MenuTree.h has the edits that keep it so.
using MenuDocument = Definition;

/// What makes a text no document, or a definition no tree. UTF-8.
class DocumentError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Popups within popups, so that neither form can exhaust the stack.
inline constexpr int MaxDepth = 1000;

/// What a text says, as far as it can be understood, and all that is wrong with it: with errors
/// among the findings the menu is not what the text's author meant.
struct ParsedMenu {
  /// Items that came from another document, by their index.
  struct Include {
    std::size_t first;
    std::size_t last;   // behind the last one
    std::string name;   // of the document
    std::string place;  // of the include in the text itself
  };

  MenuDocument menu;
  std::vector<std::string> places;  // of the items in their documents, as JSON pointers
  std::vector<Include> includes;    // inner ones before those around them
  std::vector<Finding> findings;
};

/// Reads a document: JSON with comments, UTF-8 (docs/menu-definition.md). Never throws for what is
/// in the text.
ParsedMenu ParseMenu(std::string_view text, const DocumentSources& sources = {});
/// Reads a list of items, or a single one, as FormatItems writes them.
ParsedMenu ParseItems(std::string_view text);

/// Gives a finding about an item its place in the text. One in an included document has the place
/// of the include, and names document and place in its own text.
void PlaceInText(Finding& finding, const ParsedMenu& parsed);
/// The same for a finding that has its place in the document `name`.
void PlaceInInclude(Finding& finding, const std::string& name, const std::string& includePlace);

/// The document of a menu; ParseMenu gives the same menu.
std::string FormatMenu(const MenuDocument& menu);
/// A list of items without a document around them, for the clipboard.
std::string FormatItems(const MenuDocument& menu);

}  // namespace orvane
