#include "designer/MenuFile.h"

#include <utility>

namespace orvane::designer {
namespace {

constexpr std::int32_t CannotAccess = 75;

std::wstring Reason(std::uint32_t code) {
  switch (code) {
    case 2:
    case 3:
      return L"it is not there.";
    case 5:
      return L"there is no right to do so, or it is write-protected.";
    case 32:
    case 33:
      return L"another program has it open.";
    case 112:
      return L"the disk is full.";
    default:
      return L"error " + std::to_wstring(code) + L'.';
  }
}

[[noreturn]] void Fail(const std::wstring& path, const wchar_t* what, std::uint32_t code) {
  throw Error(CannotAccess, path + what + Reason(code), {}, code);
}

std::wstring FreeName(FileReader& files, const std::wstring& path) {
  std::wstring name;
  for (int i = 1; name.empty() || files.Attributes(name); ++i)
    name = path + L".new" + std::to_wstring(i);
  return name;
}

}  // namespace

std::vector<std::byte> GetFile(FileSystem& files, const std::wstring& path) {
  auto bytes = files.Read(path);
  if (!bytes) Fail(path, L" cannot be read: ", files.LastError());
  return *std::move(bytes);
}

void PutFile(FileSystem& files, const std::wstring& path, const std::vector<std::byte>& bytes) {
  const std::wstring beside = FreeName(files, path);
  auto file = files.OpenToWrite(beside, FileSystem::Open::CreateAnew);
  if (!file) Fail(path, L" cannot be written: ", files.LastError());
  bool done = file->Write(bytes);
  file.reset();
  if (done) done = files.Replace(beside, path);
  if (done) return;
  const std::uint32_t reason = files.LastError();
  files.Remove(beside);
  Fail(path, L" cannot be written: ", reason);
}

void MenuFile::Read(const std::wstring& path, const std::function<void(const Definition&)>& take) {
  std::vector<std::byte> bytes = GetFile(m_files, path);
  try {
    DefinitionFile file(bytes, m_codePage);
    take(bytes.empty() ? Definition() : ReadDefinition(file, m_tools));
  } catch (const Error& error) {
    throw Error(error.Number(), path + L": " + error.Description());
  }
  m_path = path;
  m_bytes = std::move(bytes);
}

std::vector<std::byte> MenuFile::BytesOf(const Definition& definition) const {
  return WriteDefinition(definition, m_codePage, m_scrambler);
}

void MenuFile::Write(const std::wstring& path, const Definition& definition) {
  std::vector<std::byte> bytes = BytesOf(definition);
  if (const auto before = m_files.Read(path)) PutFile(m_files, path + L".bak", *before);
  PutFile(m_files, path, bytes);
  m_path = path;
  m_bytes = std::move(bytes);
}

bool MenuFile::ChangedMeanwhile() {
  return !m_path.empty() && m_files.Read(m_path) != m_bytes;
}

}  // namespace orvane::designer
