#include "commands/OpeningErrors.h"

#include <algorithm>
#include <iterator>

#include "support/ProductName.h"

namespace orvane {
namespace {

struct Row {
  std::int32_t code;
  std::int32_t number;  // NoNumber: the code's own
  const wchar_t* description;
};

constexpr std::int32_t NoNumber = 0;

constexpr Row Rows[] = {
    {0, 7, L"Out of memory"},
    {2, 53, L"File not found"},
    {3, 76, L"Path not found"},
    {5, 75, L"Path/file access error"},
    {8, 7, L"Out of memory"},
    {11, NoNumber, L"The executable file is invalid or corrupt"},
    {26, 75, L"A sharing violation occurred."},
    {27, NoNumber, L"This file type does not have a valid file association."},
    {28, 286, L"The file could not be opened due to time out. Please try again in a moment."},
    {29, 285,
     L"The file could not be opened because the DDE transaction failed. Please try again in a "
     L"moment."},
    {30, 285,
     L"The file could not be opened because the target application is busy. Please try again in a "
     L"moment."},
    {31, NoNumber, L"No application is associated with this file type."},
    {32, 48, L"The specified dynamic-link library was not found."},
};

constexpr Row Otherwise = {
    -1, NoNumber, L"An error occurred occurred whilst trying to open or print the selected file."};

constexpr std::uint32_t FirstOwnNumber = 0x80040418;

}  // namespace

Error OpeningError(std::int32_t code) {
  const auto found = std::ranges::find(Rows, code, &Row::code);
  const Row& row = found == std::end(Rows) ? Otherwise : *found;
  const auto own = static_cast<std::int32_t>(FirstOwnNumber + static_cast<std::uint32_t>(code));
  return Error(row.number == NoNumber ? own : row.number, row.description, ProductName);
}

}  // namespace orvane
