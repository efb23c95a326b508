#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// A name as it is written: a folder's path, empty or with a backslash at its end, and what follows
/// it. In two pieces, because a large tree is mostly a matter of copying its names.
struct WrittenName {
  std::wstring_view folder;
  std::wstring_view name;

  bool Has(wchar_t character) const {
    return folder.find(character) != std::wstring_view::npos ||
           name.find(character) != std::wstring_view::npos;
  }
  bool EndsWith(wchar_t character) const {
    return (name.empty() ? folder : name).ends_with(character);
  }
};

/// What a walk over the selection makes of the names that it finds.
class NameList {
 public:
  virtual ~NameList() = default;

  /// Whether it looks at what a name is, and at the name in one piece.
  virtual bool Filters() const = 0;

  /// So many names are going to come, with so many characters in all.
  virtual void Reserve(std::size_t names, std::size_t characters) = 0;

  /// `found` is what a filter looks at: the name in one piece.
  virtual void Add(const WrittenName& written, std::wstring_view found, bool isFolder) = 0;
};

/// Appends to a list that may grow to megabytes. Doubling would write it twice, to fresh pages each
/// time, which takes longer than the walk; room that is not used yet costs no page. It counts as
/// used up, though, wherever memory is promised page by page: a huge list only doubles.
template <class... Part>
void AppendTo(std::wstring& list, Part... parts) {
  constexpr std::size_t Large = 4 << 20;
  const std::size_t size = (list.size() + ... + parts.size());
  if (size > list.capacity()) list.reserve((size < Large ? 8 : 2) * size);
  (list.append(parts), ...);
}

}  // namespace orvane
