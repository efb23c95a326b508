#pragma once

#include <map>
#include <utility>

#include "platform/Locale.h"

namespace orvane::memory {

/// British conventions, unless a test sets others.
class Locale : public orvane::Locale {
 public:
  std::wstring Text(Fact fact, int index = 0) override;

  void Set(Fact fact, std::wstring text, int index = 0);

 private:
  std::map<std::pair<Fact, int>, std::wstring> m_set;
};

}  // namespace orvane::memory
