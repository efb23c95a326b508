#include "HostFile.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

#include "Host.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// A name beside the file that nothing bears yet.
fs::path FreeName(const fs::path& path) {
  fs::path name;
  for (int i = 1; name.empty() || fs::exists(fs::symlink_status(name)); ++i) {
    name = path;
    name += ".new" + std::to_string(i);
  }
  return name;
}

bool Write(std::ostream& stream, std::span<const std::byte> bytes) {
  stream.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(stream.flush());
}

bool WriteInto(const fs::path& path, std::span<const std::byte> bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  return file && Write(file, bytes);
}

/// Writes a file beside the old one, with its mode, and moves it over it.
bool Replace(const fs::path& path, std::span<const std::byte> bytes) {
  std::error_code error;
  const fs::file_status old = fs::status(path, error);
  const fs::path beside = FreeName(path);
  bool written = WriteInto(beside, bytes);
  if (written && fs::exists(old)) fs::permissions(beside, old.permissions(), error);
  if (written) fs::rename(beside, path, error);
  written = written && !error;
  if (!written) fs::remove(beside, error);
  return written;
}

bool WriteFileOrDevice(const fs::path& path, std::span<const std::byte> bytes) {
  std::error_code error;
  fs::path target = path;
  if (fs::is_symlink(path, error)) target = fs::weakly_canonical(path);
  const bool replaced = !fs::exists(target, error) || fs::is_regular_file(target, error);
  return replaced ? Replace(target, bytes) : WriteInto(target, bytes);
}

}  // namespace

std::string ReadHostFile(const std::string& path) {
  if (path == StandardStream) return {std::istreambuf_iterator<char>(std::cin), {}};
  const fs::path name = HostPath(path);
  std::error_code error;
  std::ifstream file(name, std::ios::binary);
  if (!file || fs::is_directory(name, error)) throw std::runtime_error(path + ": cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteHostFile(const std::string& path, std::span<const std::byte> bytes) {
  const bool standard = path == StandardStream;
  if (!(standard ? Write(std::cout, bytes) : WriteFileOrDevice(HostPath(path), bytes)))
    throw std::runtime_error((standard ? "standard output" : path) + ": cannot be written");
}

bool IsSameHostFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return fs::equivalent(HostPath(one), HostPath(other), error);
}

}  // namespace orvane::tool
