#include "memory/ProfileFiles.h"

#include "memory/Windows1252.h"
#include "support/CodePage.h"
#include "support/IniText.h"
#include "support/Number.h"

namespace orvane::memory {

namespace {

std::optional<std::wstring> Find(FileReader& files, const std::wstring& file,
                                 const std::wstring& section, const std::wstring& key) {
  const auto bytes = files.Read(file);
  if (!bytes) return std::nullopt;
  const IniText text(*bytes, CodePage(Windows1252()));
  const std::wstring* value = text.Value(section, key);
  return value ? std::optional(*value) : std::nullopt;
}

}  // namespace

std::wstring ProfileFiles::Text(const std::wstring& file, const std::wstring& section,
                                const std::wstring& key, const std::wstring& fallback,
                                std::size_t maxLength) {
  return Find(m_files, file, section, key).value_or(fallback).substr(0, maxLength);
}

std::int32_t ProfileFiles::Number(const std::wstring& file, const std::wstring& section,
                                  const std::wstring& key, std::int32_t fallback) {
  const auto value = Find(m_files, file, section, key);
  if (!value) return fallback;
  const bool negative = value->starts_with(L'-');
  const std::int32_t number = ParseLeadingNumber(negative ? value->substr(1) : *value);
  return negative ? -number : number;
}

bool ProfileFiles::Write(const std::wstring& file, const std::wstring& section,
                         const std::optional<std::wstring>& key,
                         const std::optional<std::wstring>& value) {
  auto bytes = m_files.Read(file);
  if (!bytes && m_files.Attributes(file)) return false;
  if (!bytes) bytes.emplace();
  const auto written = WriteIniText(*bytes, CodePage(Windows1252()), section, key, value);
  const auto output = m_files.OpenToWrite(file, FileSystem::Open::CreateAnew);
  return output && output->Write(written);
}

}  // namespace orvane::memory
