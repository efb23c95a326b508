#pragma once

#include "commands/NameList.h"

namespace orvane {

/// A line for each name, as the clipboard gets them.
class ClipboardLines : public NameList {
 public:
  bool Filters() const override { return false; }
  void Reserve(std::size_t names, std::size_t characters) override {
    m_text.reserve(characters + names * LineEnd.size());
  }
  void Add(const WrittenName& written, std::wstring_view, bool) override {
    AppendTo(m_text, written.folder, written.name, LineEnd);
  }

  const std::wstring& Text() const { return m_text; }

 private:
  static constexpr std::wstring_view LineEnd = L"\r\n";

  std::wstring m_text;
};

}  // namespace orvane
