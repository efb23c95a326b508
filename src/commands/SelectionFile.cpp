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

FileFailure FailureOf(const FileSystem& files, bool opened) {
  const std::uint32_t code = files.LastError();
  return {FileError(opened && code == 0 ? DiskFull : code), opened};
}

/// Writes the file whole, and removes a new one that it cannot.
std::optional<FileFailure> Write(FileSystem& files, const std::wstring& path, bool isNew,
                                 std::span<const std::byte> bytes) {
  std::unique_ptr<OutputFile> file = files.OpenToWrite(path, FileSystem::Open::CreateAnew);
  if (!file) return FailureOf(files, false);
  if (file->Write(bytes)) return std::nullopt;
  FileFailure failure = FailureOf(files, true);
  file.reset();
  if (isNew) files.Remove(path);
  return failure;
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

std::optional<FileFailure> WriteSelectionFile(FileSystem& files, const std::wstring& path,
                                              std::span<const std::byte> bytes) {
  const bool isNew = !files.Attributes(path);
  const std::wstring beside = FreeName(files, path);
  std::optional<FileFailure> failure = Write(files, beside, true, bytes);
  if (failure && failure->opened) return failure;
  if (!failure) {
    if (files.Replace(beside, path)) return std::nullopt;
    files.Remove(beside);
  }
  return Write(files, path, isNew, bytes);
}

}  // namespace orvane
