#include "FindingsText.h"

#include <nlohmann/json.hpp>

#include "menudoc/CheckMenu.h"

namespace orvane::tool {
namespace {

const char* NameOf(Finding::Severity severity) {
  return severity == Finding::Severity::Error ? "error" : "warning";
}

}  // namespace

std::string OnOneLine(std::string text) {
  for (char& character : text) {
    if (static_cast<unsigned char>(character) < ' ') character = ' ';
  }
  return text;
}

std::string FindingsText(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding& finding : findings)
    text += OnOneLine((finding.place.empty() ? "the document" : finding.place) + ": " +
                      NameOf(finding.severity) + ": " + finding.text + ". " + finding.remedy) +
            "\n";
  return text;
}

std::string FindingsJson(const std::vector<Finding>& findings) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const Finding& finding : findings)
    list.push_back({{"place", finding.place},
                    {"severity", NameOf(finding.severity)},
                    {"text", finding.text},
                    {"remedy", finding.remedy}});
  return list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

int FindingsExitCode(const std::vector<Finding>& findings) {
  return findings.empty() ? 0 : HasErrors(findings) ? 2 : 1;
}

}  // namespace orvane::tool
