#include "memory/RegFile.h"

#include <string>
#include <string_view>

#include "memory/RegFileParser.h"
#include "support/Error.h"
#include "support/Utf16.h"
#include "support/Utf8.h"

namespace orvane::memory {

namespace {

std::wstring DecodeExport(std::span<const std::byte> bytes) {
  std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  if (text.starts_with("\xFF\xFE")) return FromUtf16(bytes.subspan(2));
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  if (auto decoded = FromUtf8(text)) return *std::move(decoded);
  throw Error(Error::InvalidArgument, L"line 1: neither UTF-8 nor UTF-16 with its byte-order mark");
}

void Apply(const RegFileChange& change, Registry& registry) {
  switch (change.kind) {
    case RegFileChange::Kind::AddKey:
      return registry.AddKey(change.hive, change.path);
    case RegFileChange::Kind::RemoveKey:
      return registry.RemoveKey(change.hive, change.path);
    case RegFileChange::Kind::Set:
      return registry.Set(change.hive, change.path, change.name, change.value);
    case RegFileChange::Kind::RemoveValue:
      return registry.RemoveValue(change.hive, change.path, change.name);
  }
}

}  // namespace

std::vector<RegFileChange> ReadRegFile(std::span<const std::byte> bytes) {
  return RegFileParser(DecodeExport(bytes)).Parse();
}

void ApplyRegFile(std::span<const RegFileChange> changes, Registry& registry) {
  for (const RegFileChange& change : changes) Apply(change, registry);
}

void ImportRegFile(std::span<const std::byte> bytes, Registry& registry) {
  ApplyRegFile(ReadRegFile(bytes), registry);
}

}  // namespace orvane::memory
