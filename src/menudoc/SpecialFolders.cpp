#include "menudoc/SpecialFolders.h"

#include <algorithm>

#include "support/Text.h"

namespace orvane {
namespace {

constexpr SpecialFolder Folders[] = {
    {L"desktop", 0},
    {L"programs", 2},
    {L"controlPanel", 3},
    {L"printers", 4},
    {L"documents", 5},
    {L"favorites", 6},
    {L"startup", 7},
    {L"recent", 8},
    {L"sendTo", 9},
    {L"recycleBin", 10},
    {L"startMenu", 11},
    {L"music", 13},
    {L"videos", 14},
    {L"computer", 17},
    {L"network", 18},
    {L"fonts", 20},
    {L"templates", 21},
    {L"commonStartMenu", 22},
    {L"commonPrograms", 23},
    {L"commonStartup", 24},
    {L"commonDesktop", 25},
    {L"appData", 26},
    {L"localAppData", 28},
    {L"commonFavorites", 31},
    {L"programData", 35},
    {L"windows", 36},
    {L"system", 37},
    {L"programFiles", 38},
    {L"pictures", 39},
    {L"profile", SpecialFolder::Profile},
    {L"commonTemplates", 45},
    {L"commonDocuments", 46},
    {L"administrativeTools", 48},
    {L"connections", 49},
    {L"commonMusic", 53},
    {L"commonPictures", 54},
    {L"commonVideos", 55},
    {L"downloads", SpecialFolder::NoNumber, L"Downloads"},
};

constexpr std::int32_t LastNumber = 61;
constexpr std::int32_t Unused[] = {12, 15, 50, 51, 52, 60};

}  // namespace

std::span<const SpecialFolder> SpecialFolders() {
  return Folders;
}

const SpecialFolder* FindSpecialFolder(std::wstring_view name) {
  const std::wstring lower = LowerCase(name);
  const auto* found = std::ranges::find_if(
      Folders, [&](const SpecialFolder& folder) { return LowerCase(folder.name) == lower; });
  return found == std::end(Folders) ? nullptr : found;
}

bool IsSpecialFolder(std::int32_t number) {
  return number >= 0 && number <= LastNumber &&
         std::ranges::find(Unused, number) == std::end(Unused);
}

}  // namespace orvane
