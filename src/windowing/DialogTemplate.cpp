#include "windowing/DialogTemplate.h"

#include <cstdlib>
#include <cwchar>
#include <span>

namespace orvane::windowing {
namespace {

// Windows: DLGTEMPLATEEX documentation. Before the menu stand dlgVer, signature, helpID, exStyle,
// style, cDlgItems, x, y, cx and cy; between the font's size and its name, weight and a pair of
// bytes. The controls start at a multiple of four bytes.
constexpr std::size_t HeaderWords = 13;
constexpr std::size_t FontWords = 3;

std::size_t Aligned(std::size_t words) {
  return (words + 1) & ~std::size_t{1};
}

std::size_t AfterText(std::span<const WORD> words, std::size_t at) {
  while (words[at] != 0) ++at;
  return at + 1;
}

/// A text, or a number behind a word of ones.
std::size_t AfterName(std::span<const WORD> words, std::size_t at) {
  return words[at] == 0xFFFF ? at + 2 : AfterText(words, at);
}

int PointSize(const LOGFONTW& font) {
  const HDC screen = GetDC(nullptr);
  const int perInch = screen ? GetDeviceCaps(screen, LOGPIXELSY) : USER_DEFAULT_SCREEN_DPI;
  if (screen) ReleaseDC(nullptr, screen);
  return MulDiv(std::abs(font.lfHeight), 72, perInch);
}

std::vector<WORD> WithFont(std::span<const WORD> words, const LOGFONTW& font) {
  std::size_t fontAt = HeaderWords;
  for (int i = 0; i < 3; ++i) fontAt = AfterName(words, fontAt);  // menu, class, title
  const std::size_t controls = Aligned(AfterText(words, fontAt + FontWords));

  std::vector<WORD> result(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(fontAt));
  result.push_back(static_cast<WORD>(PointSize(font)));
  result.push_back(static_cast<WORD>(font.lfWeight));
  result.push_back(MAKEWORD(font.lfItalic, font.lfCharSet));
  result.insert(result.end(), font.lfFaceName, font.lfFaceName + wcslen(font.lfFaceName) + 1);
  result.resize(Aligned(result.size()));
  result.insert(result.end(), words.begin() + static_cast<std::ptrdiff_t>(controls), words.end());
  return result;
}

}  // namespace

std::vector<WORD> TemplateInMessageFont(HINSTANCE module, int resource) {
  const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(resource), RT_DIALOG);
  const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
  const auto* first = static_cast<const WORD*>(loaded ? LockResource(loaded) : nullptr);
  if (!first) return {};
  const std::span words(first, SizeofResource(module, found) / sizeof(WORD));

  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
    return {words.begin(), words.end()};
  return WithFont(words, metrics.lfMessageFont);
}

}  // namespace orvane::windowing
