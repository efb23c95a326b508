#include <algorithm>
#include <memory>
#include <utility>

#include "menudoc/FieldReader.h"
#include "menudoc/ItemKinds.h"
#include "menudoc/JsonText.h"
#include "menudoc/MenuDocument.h"

namespace orvane {
namespace {

using Json = nlohmann::json;

constexpr std::int32_t UnknownType = -1;

// Documents that include others twice, which include others twice, grow without bound.
constexpr std::size_t MaxItems = 1'000'000;
constexpr std::size_t MaxIncludes = 10'000;

bool IsDocumentKey(std::string_view key) {
  return key == "$schema" || key == "header";
}

std::string KnownFields(std::int32_t type) {
  const ItemKind* kind = FindKind(type);
  if (!kind || kind->fields.empty()) return "Such an item has options only.";
  return "Such an item has " + Names(kind->fields) + ", options" +
         (kind->holdsItems ? ", items." : ".");
}

class Parser {
 public:
  explicit Parser(const DocumentSources& sources)
      : m_sources(sources), m_fields(sources, [this](auto place, auto text, auto remedy) {
          Report(std::move(place), std::move(text), std::move(remedy));
        }) {}
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  ParsedMenu Document(std::string_view text) {
    const auto document = Read(text);
    if (document) AddDocument(*document);
    ReadLists();
    return std::move(m_result);
  }

  ParsedMenu Items(std::string_view text) {
    const auto read = Read(text);
    const Json items = read && read->is_object() ? Json::array({*read}) : read.value_or(Json());
    if (read) AddItems(items, 0, "", 0);
    ReadLists();
    return std::move(m_result);
  }

 private:
  /// A list of items that is being read. Kept on a stack of its own: the program's may be too small
  /// for the deepest menu.
  struct List {
    const Json* items;
    std::int32_t parent;
    std::string place;
    int depth;
    std::size_t next = 0;
    std::unique_ptr<Json> document{};  // of an include, which ends with its list
    std::size_t firstItem = 0;         // of the include
  };

  void ReadLists() {
    while (!m_lists.empty()) {
      List& list = m_lists.back();
      if (list.next == list.items->size() || m_isFull) {
        if (list.document) EndInclude(list.firstItem);
        m_lists.pop_back();
        continue;
      }
      const std::size_t i = list.next++;
      AddItem((*list.items)[i], list.parent, ElementPlace(list.place, i), list.depth);
    }
  }

  /// None when the text is no JSON.
  std::optional<Json> Read(std::string_view text) {
    JsonText json = ReadJson(text);
    for (const std::string& place : json.twice)
      Report(place, "stands there twice", "Keep one of the two.");
    if (json.error.empty()) return std::move(json.value);
    Report("", json.error, "A document is JSON in UTF-8; comments are allowed.");
    return std::nullopt;
  }

  void Report(std::string place, std::string text, std::string remedy) {
    Finding& finding = m_result.findings.emplace_back();
    finding.place = std::move(place);
    finding.text = std::move(text);
    finding.remedy = std::move(remedy);
    if (!m_including.empty()) PlaceInInclude(finding, m_including.back(), m_includePlace);
  }

  void AddDocument(const Json& document) {
    if (!document.is_object()) return Report("", "is no object", "Put it in { and }.");
    if (const auto header = document.find("header"); header != document.end()) ReadHeader(*header);
    if (document.contains("caption"))
      AddItemOfType(document, clsOrvaneData::TypeRoot, 0, "", 0);
    else
      AddRootless(document, 0, 0);
  }

  void AddRootless(const Json& document, std::int32_t parent, int depth) {
    for (const auto& [key, value] : document.items()) {
      if (key == "items")
        AddItems(value, parent, "/items", depth);
      else if (!IsDocumentKey(key))
        Report(MemberPlace("", key), "is not known in a document without a caption",
               "Use items and header only, or give the document a caption.");
    }
  }

  void ReadHeader(const Json& value) {
    if (!value.is_array() || value.size() != 2)
      return Report("/header", "is no list of two numbers",
                    "Give the first and the third number of the file's header, or leave it out.");
    clsFileHeader& header = m_result.menu.header;
    header.HeaderValue1 = m_fields.NumberOf(value[0], {}, "/header/0");
    header.HeaderValue3 = m_fields.NumberOf(value[1], {}, "/header/1");
  }

  void AddItems(const Json& items, std::int32_t parent, const std::string& place, int depth) {
    if (!items.is_array()) return Report(place, "is no list", "Put the items in [ and ].");
    m_lists.push_back({&items, parent, place, depth});
  }

  void AddItem(const Json& item, std::int32_t parent, const std::string& place, int depth) {
    if (!item.is_object()) return Report(place, "is no object", "Put the item in { and }.");
    if (depth > MaxDepth)
      return Report(place, "lies in more than " + std::to_string(MaxDepth) + " popups",
                    "Move it further up.");
    if (item.contains("include"))
      AddInclude(item, parent, place, depth);
    else
      AddItemOfType(item, TypeOf(item, place), parent, place, depth);
  }

  std::int32_t TypeOf(const Json& item, const std::string& place) {
    const auto type = item.find("type");
    if (type != item.end() && IsNumber(*type)) return type->get<std::int32_t>();
    if (type == item.end()) {
      Report(place, "has no type", "Use one of " + Names(ItemKinds()) + ".");
      return UnknownType;
    }
    const ItemKind* kind = type->is_string()
                               ? FindKind(std::string_view(type->get_ref<const std::string&>()))
                               : nullptr;
    if (!kind)
      Report(place + "/type", type->dump() + " is no type",
             "Use one of " + Names(ItemKinds()) + ".");
    return kind ? kind->type : UnknownType;
  }

  void AddItemOfType(const Json& json, std::int32_t type, std::int32_t parent,
                     const std::string& place, int depth) {
    auto& items = m_result.menu.items;
    if (items.size() == MaxItems) return ReportTooMany(place, "item", MaxItems);
    items.emplace_back().parent = parent;
    m_result.places.push_back(place);
    ReadFields(json, type, items.back().data, place);
    const auto self = static_cast<std::int32_t>(items.size());
    if (const auto children = json.find("items"); children != json.end())
      AddItems(*children, self, place + "/items", place.empty() ? 0 : depth + 1);
  }

  void ReportTooMany(const std::string& place, const std::string& what, std::size_t limit) {
    m_isFull = true;
    Report(place, "is one " + what + " more than " + std::to_string(limit),
           "Use fewer " + what + "s.");
  }

  void ReadFields(const Json& json, std::int32_t type, clsOrvaneData& data,
                  const std::string& place) {
    data.m_lType = type;
    for (const auto& [key, value] : json.items()) {
      if (key == "items" || (place.empty() ? IsDocumentKey(key) : key == "type")) continue;
      if (const ItemField* field = FindField(type, std::string_view(key)))
        m_fields.Read(value, *field, data, std::string(place).append("/").append(key));
      else if (type != UnknownType)
        Report(MemberPlace(place, key), "is not known for this type of item", KnownFields(type));
    }
    m_fields.ResolveFolders(data, place);
  }

  void AddInclude(const Json& item, std::int32_t parent, const std::string& place, int depth) {
    for (const auto& [key, value] : item.items()) {
      if (key != "include")
        Report(MemberPlace(place, key), "is not known beside an include",
               "Leave it out: the items of the other document stand here as they are.");
    }
    const Json& name = item["include"];
    if (!name.is_string())
      return Report(place + "/include", "is no text", "Put the document's name in double quotes.");
    const std::string from = m_including.empty() ? "" : m_including.back();
    const auto document = m_sources.document
                              ? m_sources.document(name.get_ref<const std::string&>(), from)
                              : std::nullopt;
    if (!document)
      return Report(place + "/include", name.dump() + " cannot be read", "Correct the name.");
    if (std::ranges::find(m_including, document->name) != m_including.end())
      return ReportCircle(document->name, place + "/include");
    Include(*document, parent, place + "/include", depth);
  }

  void ReportCircle(const std::string& name, const std::string& place) {
    std::string circle;
    for (auto open = std::ranges::find(m_including, name); open != m_including.end(); ++open)
      circle += *open + ", ";
    Report(place, "documents include each other in a circle: " + circle + name,
           "Take one of these includes out.");
  }

  /// Puts the items of another document here; its caption and options are its own affair.
  void Include(const DocumentSources::Document& document, std::int32_t parent,
               const std::string& place, int depth) {
    if (m_result.includes.size() + m_including.size() == MaxIncludes)
      return ReportTooMany(place, "include", MaxIncludes);
    if (m_including.empty()) m_includePlace = place;
    m_including.push_back(document.name);
    const std::size_t before = m_lists.size();
    const std::size_t firstItem = m_result.menu.items.size();
    auto json = std::make_unique<Json>(Read(document.text).value_or(Json()));
    if (json->is_object() && json->contains("items"))
      AddItems((*json)["items"], parent, "/items", depth);
    else if (!json->is_object() && !json->is_null())
      Report("", "is no object", "Put it in { and }.");
    if (m_lists.size() == before) return EndInclude(firstItem);
    m_lists.back().document = std::move(json);
    m_lists.back().firstItem = firstItem;
  }

  void EndInclude(std::size_t firstItem) {
    m_result.includes.push_back(
        {firstItem, m_result.menu.items.size(), m_including.back(), m_includePlace});
    m_including.pop_back();
  }

  const DocumentSources& m_sources;
  FieldReader m_fields;
  ParsedMenu m_result;
  std::vector<List> m_lists;
  std::vector<std::string> m_including;  // names of the documents being read, the outermost first
  std::string m_includePlace;            // of the outermost one, in the document itself
  bool m_isFull = false;
};

}  // namespace

ParsedMenu ParseMenu(std::string_view text, const DocumentSources& sources) {
  return Parser(sources).Document(text);
}

ParsedMenu ParseItems(std::string_view text) {
  return Parser({}).Items(text);
}

void PlaceInInclude(Finding& finding, const std::string& name, const std::string& includePlace) {
  finding.text = name + (finding.place.empty() ? "" : " " + finding.place) + ": " + finding.text;
  finding.place = includePlace;
}

void PlaceInText(Finding& finding, const ParsedMenu& parsed) {
  finding.place = parsed.places[finding.item];
  if (!finding.field.empty()) finding.place += "/" + finding.field;
  // An inner include ends before the one around it and stands before it in the list.
  const auto include = std::ranges::find_if(parsed.includes, [&](const ParsedMenu::Include& range) {
    return finding.item >= range.first && finding.item < range.last;
  });
  if (include != parsed.includes.end()) PlaceInInclude(finding, include->name, include->place);
}

}  // namespace orvane
