#include "designer/Labels.h"

#include "support/Text.h"

namespace orvane::designer {
namespace {

bool IsLetter(wchar_t c) {
  return (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9');
}

}  // namespace

std::wstring LabelOf(std::string_view name) {
  std::wstring label;
  for (const char c : name) {
    const auto letter = static_cast<wchar_t>(c);
    const bool isCapital = c >= 'A' && c <= 'Z';
    if (isCapital) label += L' ';
    label += label.empty() ? UpperCase(letter) : LowerCase(letter);
  }
  return label;
}

void AddAccessKeys(std::vector<std::wstring>& labels, std::wstring taken) {
  for (std::wstring& label : labels) {
    for (std::size_t i = 0; i < label.size(); ++i) {
      const wchar_t letter = LowerCase(label[i]);
      if (!IsLetter(letter) || taken.find(letter) != std::wstring::npos) continue;
      taken += letter;
      label.insert(i, L"&");
      break;
    }
  }
}

}  // namespace orvane::designer
