#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// What a document may refer to outside of itself.
struct DocumentSources {
  struct Document {
    std::string name;  // the same however it was referred to
    std::string text;
  };

  /// What a name between percent signs, or a special folder's name, stands for; none for a name
  /// that stands for nothing.
  std::function<std::optional<std::wstring>(std::wstring_view name)> value{};
  /// The document of a name that the document `from` gives (empty for the first one); none when it
  /// cannot be read.
  std::function<std::optional<Document>(const std::string& name, const std::string& from)>
      document{};
};

}  // namespace orvane
