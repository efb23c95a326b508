#include "menudata/RegistryAccess.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "support/Text.h"
#include "support/Utf16.h"

namespace orvane {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::size_t FlagSize = 2;    // of kind "B", in bytes
constexpr std::size_t NumberSize = 4;  // of REG_DWORD

/// A little-endian number that must fill `size` bytes.
std::int32_t ReadBits(RegistryKey& key, const std::wstring& name, std::size_t size,
                      std::uint32_t& bits) {
  RegistryValue stored;
  if (const std::int32_t error = key.Read(name, stored)) return error;
  const bool binary = stored.type == RegistryValue::Binary;
  const bool number = stored.type == RegistryValue::Number && size == NumberSize;
  if (!(binary || number) || stored.data.size() != size) return InvalidData;
  bits = 0;
  for (; !stored.data.empty(); stored.data.pop_back())
    bits = (bits << 8) | std::to_integer<std::uint32_t>(stored.data.back());
  return 0;
}

Bytes BytesOf(std::uint32_t bits, std::size_t size) {
  Bytes bytes;
  for (; bytes.size() < size; bits >>= 8) bytes.push_back(static_cast<std::byte>(bits & 0xFF));
  return bytes;
}

std::int32_t ReadBinaryFlag(RegistryKey& key, const std::wstring& name, bool& value) {
  std::uint32_t bits = 0;
  const std::int32_t error = ReadBits(key, name, FlagSize, bits);
  if (!error) value = bits != 0;
  return error;
}

std::int32_t WriteBinaryFlag(RegistryKey& key, const std::wstring& name, bool value) {
  return key.Write(name, {RegistryValue::Binary, BytesOf(value ? 0xFFFF : 0, FlagSize)});
}

}  // namespace

std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, std::wstring& value) {
  RegistryValue stored;
  if (const std::int32_t error = key.Read(name, stored)) return error;
  if (stored.type != RegistryValue::Text || stored.data.size() % 2 != 0) return InvalidData;
  value = FromUtf16(stored.data);
  if (value.ends_with(L'\0')) value.pop_back();
  return 0;
}

std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, bool& value) {
  std::uint32_t bits = 0;
  const std::int32_t error = ReadBits(key, name, NumberSize, bits);
  if (!error) value = bits != 0;
  return error;
}

std::int32_t ReadValue(RegistryKey& key, const std::wstring& name, std::int32_t& value) {
  std::uint32_t bits = 0;
  const std::int32_t error = ReadBits(key, name, NumberSize, bits);
  if (!error) value = static_cast<std::int32_t>(bits);
  return error;
}

std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, const std::wstring& value) {
  return key.Write(name, {RegistryValue::Text, ToUtf16(value + L'\0')});
}

std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, bool value) {
  return key.Write(name, {RegistryValue::Number, BytesOf(value, NumberSize), true});
}

std::int32_t WriteValue(RegistryKey& key, const std::wstring& name, std::int32_t value) {
  return key.Write(name,
                   {RegistryValue::Number, BytesOf(static_cast<std::uint32_t>(value), NumberSize)});
}

namespace {

constexpr std::pair<std::wstring_view, Hive> Hives[] = {
    {L"hkcu", Hive::CurrentUser}, {L"hklm", Hive::LocalMachine},  {L"hku", Hive::Users},
    {L"hkdd", Hive::DynData},     {L"hkcc", Hive::CurrentConfig}, {L"hkcr", Hive::ClassesRoot},
};

std::optional<Hive> FindHive(std::wstring_view givenName) {
  const std::wstring name = LowerCase(givenName);
  for (const auto& [candidate, hive] : Hives) {
    if (candidate == name) return hive;
  }
  return std::nullopt;
}

bool IsFile(FileReader& files, const std::wstring& path) {
  const auto attributes = files.Attributes(path);
  return attributes && (*attributes & FileAttribute::Directory) == 0;
}

/// How one kind is read and written; `Value` is what the kind's variables hold.
struct Kind {
  std::wstring_view name;
  std::int32_t (*read)(RegistryKey&, const std::wstring&, RegValue&);
  std::int32_t (*write)(RegistryKey&, const std::wstring&, const RegValue&);
};

template <class Value, auto Read>
std::int32_t ReadAs(RegistryKey& key, const std::wstring& name, RegValue& result) {
  Value value{};
  const std::int32_t error = Read(key, name, value);
  if (!error) result = std::move(value);
  return error;
}

template <class Value, auto Write>
std::int32_t WriteAs(RegistryKey& key, const std::wstring& name, const RegValue& value) {
  const Value* held = std::get_if<Value>(&value);
  return held ? Write(key, name, *held) : InvalidData;
}

template <class Value>
constexpr auto Reader =
    static_cast<std::int32_t (*)(RegistryKey&, const std::wstring&, Value&)>(ReadValue);

template <class Value, class Argument = Value>
constexpr auto Writer =
    static_cast<std::int32_t (*)(RegistryKey&, const std::wstring&, Argument)>(WriteValue);

constexpr std::wstring_view TextKind = L"s";

constexpr Kind Kinds[] = {
    {TextKind, ReadAs<std::wstring, Reader<std::wstring>>,
     WriteAs<std::wstring, Writer<std::wstring, const std::wstring&>>},
    {L"b", ReadAs<bool, ReadBinaryFlag>, WriteAs<bool, WriteBinaryFlag>},
    {L"bool", ReadAs<bool, Reader<bool>>, WriteAs<bool, Writer<bool>>},
    {L"d", ReadAs<std::int32_t, Reader<std::int32_t>>, WriteAs<std::int32_t, Writer<std::int32_t>>},
};

const Kind* FindKind(std::wstring_view givenName) {
  const std::wstring name = LowerCase(givenName);
  for (const Kind& kind : Kinds) {
    if (kind.name == name) return &kind;
  }
  return nullptr;
}

constexpr std::size_t MaxProfileText = 254;  // what a buffer of 255 characters holds

std::int32_t GetFromProfile(ProfileFiles& profiles, const std::wstring& file,
                            const std::wstring& section, const std::wstring& entry,
                            std::wstring_view kind, const RegValue& fallback, RegValue& result) {
  if (LowerCase(kind) != TextKind) {
    const std::int32_t number = profiles.Number(file, section, entry, 0);
    result = number;
    return number;
  }
  const auto* text = std::get_if<std::wstring>(&fallback);
  std::wstring value =
      profiles.Text(file, section, entry, text ? *text : std::wstring(), MaxProfileText);
  const auto length = static_cast<std::int32_t>(value.size());
  result = std::move(value);
  return length;
}

}  // namespace

std::int32_t RegGet(const RegistryAccess& access, const std::wstring& hive, const std::wstring& key,
                    const std::wstring& name, std::wstring_view kind, const RegValue& fallback,
                    RegValue& result) {
  result = fallback;
  const auto root = FindHive(hive);
  if (!root) {
    if (!IsFile(access.files, hive)) return InvalidHive;
    return GetFromProfile(access.profiles, hive, key, name, kind, fallback, result);
  }
  std::unique_ptr<RegistryKey> open;
  if (const std::int32_t error = access.registry.OpenToRead(*root, key, open)) return error;
  const Kind* how = FindKind(kind);
  return how ? how->read(*open, name, result) : 0;
}

std::int32_t RegSet(const RegistryAccess& access, const std::wstring& hive, const std::wstring& key,
                    const std::wstring& name, std::wstring_view kind, const RegValue& value) {
  const auto root = FindHive(hive);
  if (!root) {
    const auto* text = std::get_if<std::wstring>(&value);
    const bool takesIt = text && LowerCase(kind) == TextKind;
    if (!takesIt || !IsFile(access.files, hive)) return InvalidHive;
    return access.profiles.Write(hive, key, name, *text);
  }
  std::unique_ptr<RegistryKey> open;
  if (const std::int32_t error = access.registry.OpenToWrite(*root, key, open)) return error;
  const Kind* how = FindKind(kind);
  return how ? how->write(*open, name, value) : 0;
}

}  // namespace orvane
