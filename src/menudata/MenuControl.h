#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// A menu of a user interface of its own (the designer's), as far as a recently-used list fills it:
/// a collection of sub-items with text keys.
class MenuControl {
 public:
  virtual ~MenuControl() = default;

  virtual std::wstring TypeName() = 0;
  virtual std::int32_t SubItemCount() = 0;
  virtual std::wstring SubItemKey(std::int32_t position) = 0;  // 1-based
  virtual void RemoveSubItem(const std::wstring& key) = 0;
  /// Inserts before the sub-item of the key `before`; an empty caption makes a separator.
  virtual void InsertSubItem(const std::wstring& key, const std::wstring& caption,
                             const std::wstring& before) = 0;
};

}  // namespace orvane
