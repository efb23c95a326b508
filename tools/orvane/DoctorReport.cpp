#include "DoctorReport.h"

#include "support/Utf8.h"

namespace orvane::tool {

void DoctorReport::Section(std::string_view name) {
  m_text.append(m_text.empty() ? "" : "\n").append(name) += '\n';
}

void DoctorReport::Fine(std::wstring_view text) {
  Line("  ok     ", text, {});
}

void DoctorReport::Note(std::wstring_view text, std::wstring_view remedy) {
  ++m_notes;
  Line("  note   ", text, remedy);
}

void DoctorReport::Fault(std::wstring_view text, std::wstring_view remedy) {
  ++m_faults;
  Line("  FAULT  ", text, remedy);
}

void DoctorReport::Line(std::string_view mark, std::wstring_view text, std::wstring_view remedy) {
  m_text.append(mark).append(ToUtf8(text)) += '\n';
  if (!remedy.empty()) m_text.append("         -> ").append(ToUtf8(remedy)) += '\n';
}

std::string DoctorReport::Text() const {
  return m_text + "\nFaults: " + std::to_string(m_faults) + ", notes: " + std::to_string(m_notes) +
         '\n';
}

}  // namespace orvane::tool
