#pragma once

#include <vector>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/FileOperations.h"

namespace orvane::memory {

/// Records the operation as an effect ("SHFileOperation") and touches no file.
class FileOperations : public orvane::FileOperations {
 public:
  FileOperations(Effects& effects, Faults& faults) : m_effects(effects), m_faults(faults) {}

  std::int32_t Run(WindowHandle, Function function, const FileNames& from, const std::wstring& to,
                   std::uint16_t flags) override {
    if (m_faults.Hit()) return AccessDenied;
    if (from.Count() == 0) return 0;
    if (HasWildcard(from)) return InvalidName;
    std::vector<std::wstring> names;
    names.reserve(from.Count());
    for (auto rest = from.All(); !rest.empty();) names.emplace_back(FileNames::Take(rest));
    m_effects.Add(Effect("SHFileOperation")
                      .With("func", std::wstring(function == Function::Copy ? L"copy" : L"move"))
                      .With("from", std::move(names))
                      .With("to", to.substr(0, to.find(L'\0')))
                      .With("flags", std::int64_t{flags}));
    return 0;
  }

 private:
  static constexpr std::int32_t AccessDenied = 5;  // ERROR_ACCESS_DENIED

  Effects& m_effects;
  Faults& m_faults;
};

}  // namespace orvane::memory
