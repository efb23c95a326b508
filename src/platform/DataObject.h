#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

/// The names of a selection: full paths, each followed by a zero character, in one text. One block
/// however many names there are, since every right-click takes it.
class FileNames {
 public:
  FileNames() = default;

  void Add(std::wstring_view name) {
    m_text.append(name);
    m_text.push_back(L'\0');
    ++m_count;
  }

  std::size_t Count() const { return m_count; }

  /// Walks the names: `for (auto rest = names.All(); !rest.empty();) name = FileNames::Take(rest)`.
  std::wstring_view All() const { return m_text; }

  /// Cuts the first name off `rest`.
  static std::wstring_view Take(std::wstring_view& rest) {
    const std::wstring_view name = rest.substr(0, rest.find(L'\0'));
    rest.remove_prefix(name.size() + 1);
    return name;
  }

 private:
  std::wstring m_text;
  std::size_t m_count = 0;
};

/// The selection that the shell hands over (IDataObject).
class DataObject {
 public:
  virtual ~DataObject() = default;

  /// The selected files (CF_HDROP); 0 or the failing HRESULT, `names` then untouched. A medium that
  /// cannot be locked is a failure too; the medium is released on every path.
  virtual std::int32_t Files(FileNames& names) = 0;
};

}  // namespace orvane
