#pragma once

#include <initializer_list>
#include <utility>

#include "platform/DataObject.h"

namespace orvane::memory {

/// A selection in memory.
class DataObject : public orvane::DataObject {
 public:
  static constexpr std::int32_t NoFiles = static_cast<std::int32_t>(0x80040064);  // DV_E_FORMATETC
  static constexpr std::int32_t LockFailed =
      static_cast<std::int32_t>(0x8007000E);  // E_OUTOFMEMORY

  DataObject() = default;
  explicit DataObject(FileNames names) : m_names(std::move(names)) {}
  DataObject(std::initializer_list<std::wstring_view> names) {
    for (std::wstring_view name : names) m_names.Add(name);
  }

  std::int32_t Files(FileNames& names) override {
    ++reads;
    if (failure == 0) names = m_names;
    return failure;
  }

  std::int32_t failure = 0;  // HRESULT that reading ends with: NoFiles, LockFailed, ...
  int reads = 0;

 private:
  FileNames m_names;
};

}  // namespace orvane::memory
