#include "memory/Registry.h"

#include "memory/RegistryText.h"
#include "support/Text.h"

namespace orvane::memory {

namespace {

constexpr std::int32_t AccessDenied = 5;
constexpr std::int32_t IoFailure = 1117;  // ERROR_IO_DEVICE, for a call that a test fails

std::wstring WithoutBackslash(std::wstring path) {
  while (!path.empty() && path.back() == L'\\') path.pop_back();
  return path;
}

std::pair<Hive, std::wstring> NameOf(Hive hive, const std::wstring& path) {
  return {hive, LowerCase(WithoutBackslash(path))};
}

std::wstring HiveName(Hive hive) {
  switch (hive) {
    case Hive::ClassesRoot:
      return L"HKCR";
    case Hive::CurrentUser:
      return L"HKCU";
    case Hive::LocalMachine:
      return L"HKLM";
    case Hive::Users:
      return L"HKU";
    case Hive::CurrentConfig:
      return L"HKCC";
    case Hive::DynData:
      return L"HKDD";
  }
  return {};
}

std::wstring HexDigits(const std::vector<std::byte>& bytes) {
  constexpr wchar_t Digits[] = L"0123456789ABCDEF";
  std::wstring text;
  for (const std::byte byte : bytes) {
    text.push_back(Digits[std::to_integer<std::size_t>(byte >> 4)]);
    text.push_back(Digits[std::to_integer<std::size_t>(byte & std::byte{15})]);
  }
  return text;
}

/// The value as the settings' kinds see it: "D" a number, "BOOL" one that is a flag, "S" a text,
/// "B" a 16-bit boolean, or the digits of its bytes when it has another length.
Effect SetEffect(const std::wstring& key, const std::wstring& name, const RegistryValue& value) {
  std::wstring kind = L"S";
  Effect::Value shown = TextOf(value);
  if (value.type == RegistryValue::Number) {
    const auto number = static_cast<std::int32_t>(NumberOf(value).value_or(0));
    kind = value.isFlag ? L"BOOL" : L"D";
    shown = std::int64_t{number};
    if (value.isFlag) shown = number != 0;
  } else if (value.type == RegistryValue::Binary) {
    kind = L"B";
    if (value.data.size() == 2) {
      shown = value.data[0] != std::byte{} || value.data[1] != std::byte{};
    } else {
      shown = HexDigits(value.data);
    }
  }
  return Effect("RegSet")
      .With("key", key)
      .With("name", name)
      .With("kind", kind)
      .With("value", std::move(shown));
}

}  // namespace

class Registry::Key : public RegistryKey {
 public:
  Key(Registry& registry, Hive hive, const std::wstring& path, bool writable)
      : m_registry(registry),
        m_name(NameOf(hive, path)),
        m_shownName(HiveName(hive) + L"\\" + WithoutBackslash(path)),
        m_writable(writable) {}

  std::int32_t Read(const std::wstring& name, RegistryValue& value) override {
    if (m_registry.m_faults.Hit()) return IoFailure;
    if (m_writable) return AccessDenied;
    const Values* values = m_registry.FindKey(m_name);
    if (!values) return NotFound;
    const auto found = values->find(LowerCase(name));
    if (found == values->end()) return NotFound;
    value = found->second;
    if (value.type == RegistryValue::TextToExpand)
      value = TextValue(m_registry.m_system.Expand(TextOf(value)));
    return 0;
  }

  std::int32_t Write(const std::wstring& name, const RegistryValue& value) override {
    if (m_registry.m_faults.Hit()) return IoFailure;
    if (!m_writable) return AccessDenied;
    Values* values = m_registry.FindKey(m_name);
    if (!values) return NotFound;
    (*values)[LowerCase(name)] = value;
    m_registry.m_effects.Add(SetEffect(m_shownName, name, value));
    return 0;
  }

 private:
  Registry& m_registry;
  KeyName m_name;
  std::wstring m_shownName;
  bool m_writable;
};

std::int32_t Registry::OpenToRead(Hive hive, const std::wstring& path,
                                  std::unique_ptr<RegistryKey>& key) {
  if (m_faults.Hit()) return IoFailure;
  const KeyName name = NameOf(hive, path);
  if (m_denied.contains(name)) return AccessDenied;
  if (!name.second.empty() && !FindKey(name)) return RegistryKey::NotFound;
  key = std::make_unique<Key>(*this, hive, path, false);
  return 0;
}

std::int32_t Registry::OpenToWrite(Hive hive, const std::wstring& path,
                                   std::unique_ptr<RegistryKey>& key) {
  if (m_faults.Hit()) return IoFailure;
  if (m_denied.contains(NameOf(hive, path))) return AccessDenied;
  AddKey(hive, path);
  key = std::make_unique<Key>(*this, hive, path, true);
  return 0;
}

void Registry::AddKey(Hive hive, const std::wstring& path) {
  KeyName name = NameOf(hive, path);
  m_keys.try_emplace(name);
  for (std::size_t end; (end = name.second.rfind(L'\\')) != std::wstring::npos;) {
    name.second.resize(end);
    m_keys.try_emplace(name);
  }
}

void Registry::Set(Hive hive, const std::wstring& path, const std::wstring& name,
                   RegistryValue value) {
  AddKey(hive, path);
  m_keys[NameOf(hive, path)][LowerCase(name)] = std::move(value);
}

void Registry::SetText(Hive hive, const std::wstring& path, const std::wstring& name,
                       std::wstring_view text) {
  Set(hive, path, name, TextValue(text));
}

void Registry::SetNumber(Hive hive, const std::wstring& path, const std::wstring& name,
                         std::uint32_t number) {
  Set(hive, path, name, NumberValue(number));
}

std::optional<RegistryValue> Registry::Find(Hive hive, const std::wstring& path,
                                            const std::wstring& name) {
  const Values* values = FindKey(NameOf(hive, path));
  if (!values) return std::nullopt;
  const auto found = values->find(LowerCase(name));
  if (found == values->end()) return std::nullopt;
  return found->second;
}

std::optional<std::wstring> Registry::FindText(Hive hive, const std::wstring& path,
                                               const std::wstring& name) {
  const auto value = Find(hive, path, name);
  if (!value || value->type != RegistryValue::Text) return std::nullopt;
  return TextOf(*value);
}

std::optional<std::uint32_t> Registry::FindNumber(Hive hive, const std::wstring& path,
                                                  const std::wstring& name) {
  const auto value = Find(hive, path, name);
  if (!value || value->type != RegistryValue::Number) return std::nullopt;
  return NumberOf(*value);
}

void Registry::RemoveKey(Hive hive, const std::wstring& path) {
  const KeyName name = NameOf(hive, path);
  const std::wstring below = name.second + L'\\';
  std::erase_if(m_keys, [&](const auto& key) {
    return key.first.first == hive &&
           (key.first.second == name.second || key.first.second.starts_with(below));
  });
}

void Registry::RemoveValue(Hive hive, const std::wstring& path, const std::wstring& name) {
  if (Values* values = FindKey(NameOf(hive, path))) values->erase(LowerCase(name));
}

bool Registry::HasKey(Hive hive, const std::wstring& path) const {
  return m_keys.contains(NameOf(hive, path));
}

void Registry::Deny(Hive hive, const std::wstring& path) {
  m_denied.insert(NameOf(hive, path));
}

Registry::Values* Registry::FindKey(const KeyName& name) {
  const auto found = m_keys.find(name);
  return found == m_keys.end() ? nullptr : &found->second;
}

}  // namespace orvane::memory
