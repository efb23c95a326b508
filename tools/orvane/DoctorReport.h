#pragma once

#include <string>
#include <string_view>

namespace orvane::tool {

/// What an examination found, as text to read and to send on: sections of lines, each fine, a note
/// or a fault with its remedy.
class DoctorReport {
 public:
  void Section(std::string_view name);
  void Fine(std::wstring_view text);
  /// Something worth knowing that keeps nothing from working.
  void Note(std::wstring_view text, std::wstring_view remedy = {});
  void Fault(std::wstring_view text, std::wstring_view remedy);

  int Faults() const { return m_faults; }
  /// UTF-8, with the sum in its last line.
  std::string Text() const;

 private:
  void Line(std::string_view mark, std::wstring_view text, std::wstring_view remedy);

  std::string m_text;
  int m_faults = 0;
  int m_notes = 0;
};

}  // namespace orvane::tool
