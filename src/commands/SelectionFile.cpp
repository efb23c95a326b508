#include "commands/SelectionFile.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace orvane {
namespace {

struct Row {
  std::uint32_t code;  // Windows: System Error Codes
  std::int32_t number;
  const wchar_t* description;
};

constexpr Row Rows[] = {
    {2, 53, L"File not found"},
    {3, 76, L"Path not found"},
    {15, 68, L"Device unavailable"},
    {19, 70, L"Permission denied"},  // write-protected
    {21, 71, L"Disk not ready"},
    {32, 70, L"Permission denied"},  // open in another program
    {33, 70, L"Permission denied"},
    {39, 61, L"Disk full"},
    {53, 76, L"Path not found"},  // no such server
    {67, 76, L"Path not found"},  // no such share
    {112, 61, L"Disk full"},
    {123, 52, L"Bad file name or number"},
    {161, 52, L"Bad file name or number"},
    {206, 52, L"Bad file name or number"},  // too long
};

constexpr Row Otherwise = {0, 75, L"Path/file access error"};

constexpr std::uint32_t DiskFull = 112;

/// Writes a new file whole, or leaves none. 0 or the error code.
std::uint32_t WriteWhole(FileSystem& files, const std::wstring& path,
                         std::span<const std::byte> bytes) {
  std::unique_ptr<OutputFile> file = files.OpenToWrite(path, FileSystem::Open::CreateAnew);
  if (!file) return files.LastError();
  const bool written = file->Write(bytes);
  const std::uint32_t failure = files.LastError();
  file.reset();
  if (written) return 0;
  files.Remove(path);
  return failure != 0 ? failure : DiskFull;
}

/// A name beside the file that nothing bears yet.
std::wstring FreeName(FileReader& files, const std::wstring& path) {
  constexpr int Attempts = 100;
  for (int i = 1; i <= Attempts; ++i) {
    std::wstring name = path + L".new" + std::to_wstring(i);
    if (!files.Attributes(name)) return name;
  }
  return {};
}

}  // namespace

Error FileError(std::uint32_t code) {
  const auto found = std::ranges::find(Rows, code, &Row::code);
  const Row& row = found == std::end(Rows) ? Otherwise : *found;
  return Error(row.number, row.description, {}, code);
}

std::optional<Error> WriteSelectionFile(FileSystem& files, const std::wstring& path,
                                        std::span<const std::byte> bytes) {
  const bool replaces = files.Attributes(path).has_value();
  const std::wstring written = replaces ? FreeName(files, path) : path;
  std::uint32_t failure = WriteWhole(files, written, bytes);
  if (failure == 0 && replaces && !files.Replace(written, path)) {
    failure = files.LastError();
    files.Remove(written);
  }
  if (failure == 0) return std::nullopt;
  return FileError(failure);
}

}  // namespace orvane
