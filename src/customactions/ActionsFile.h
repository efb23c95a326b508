#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "customactions/CustomAction.h"
#include "platform/FileSystem.h"
#include "support/CodePage.h"
#include "support/IniText.h"

namespace orvane {

/// The file of custom actions, read with one read when the object is made. Names and values are
/// taken whole, however long: a shorter reading would drop actions and play half a script. A file
/// that is missing, cannot be read, is larger than MaxSize or is given by no full path holds
/// nothing.
class ActionsFile {
 public:
  static constexpr std::size_t MaxSize = 16u << 20;  // bytes

  ActionsFile(FileReader& files, const CodePage& codePage, const std::wstring& path,
              const Patience& patience = Patience::Chosen);
  ActionsFile(std::span<const std::byte> bytes, const CodePage& codePage)
      : m_text(bytes, codePage) {}

  /// Section names in file order, each once; an empty name ends the list.
  std::vector<std::wstring> Ids() const;

  /// Names of sections that do not count: of a name that an earlier one has, or behind the end.
  std::vector<std::wstring> Unseen() const;

  /// What a number in the file means, given its key and its text.
  using ReadNumber = std::function<std::int32_t(const wchar_t*, const std::wstring&)>;

  /// The action of that name; one of defaults when there is none. Throws what `number` does.
  CustomAction Action(const std::wstring& id, const ReadNumber& number) const;

  /// `fallback` when section or key is missing, empty when the value is.
  std::wstring GetProfileValue(std::wstring_view id, std::wstring_view key,
                               std::wstring_view fallback) const;

 private:
  IniText m_text;
};

}  // namespace orvane
