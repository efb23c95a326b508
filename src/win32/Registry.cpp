#include "win32/Registry.h"

#include <windows.h>

#include <type_traits>

#include "support/Utf16.h"
#include "win32/GrowingText.h"
#include "win32/UniqueHandle.h"

namespace orvane::win32 {

namespace {

struct KeyCloser {
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using UniqueKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

RegistryValue Expanded(const RegistryValue& value) {
  const std::wstring text = FromUtf16(value.data);
  std::wstring expanded = GrowingText([&text](wchar_t* buffer, DWORD size) {
    return ExpandEnvironmentStringsW(text.c_str(), buffer, size);
  });
  if (!expanded.ends_with(L'\0')) expanded += L'\0';
  return {RegistryValue::Text, ToUtf16(expanded)};
}

/// The right to write, which one key of the session has at a time: two windows that save one list
/// would else leave some entries of each. Whoever has it for long is not waited for.
class WriteTurn {
 public:
  WriteTurn() : m_mutex(CreateMutexW(nullptr, FALSE, L"Local\\Tarnwick.Orvane.Registry")) {
    const DWORD answer = m_mutex ? WaitForSingleObject(m_mutex.get(), Limit) : WAIT_FAILED;
    m_isOurs = answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
  }
  ~WriteTurn() {
    if (m_isOurs) ReleaseMutex(m_mutex.get());
  }
  WriteTurn(const WriteTurn&) = delete;
  WriteTurn& operator=(const WriteTurn&) = delete;

 private:
  static constexpr DWORD Limit = 500;  // milliseconds

  UniqueKernelHandle m_mutex;
  bool m_isOurs = false;
};

class Key : public RegistryKey {
 public:
  explicit Key(UniqueKey key, std::unique_ptr<WriteTurn> turn = nullptr)
      : m_turn(std::move(turn)), m_key(std::move(key)) {}

  std::int32_t Read(const std::wstring& name, RegistryValue& value) override {
    const std::int32_t error = ReadStored(name, value);
    if (error == 0 && value.type == RegistryValue::TextToExpand) value = Expanded(value);
    return error;
  }

  std::int32_t Write(const std::wstring& name, const RegistryValue& value) override {
    return RegSetValueExW(m_key.get(), name.c_str(), 0, value.type,
                          reinterpret_cast<const BYTE*>(value.data.data()),
                          static_cast<DWORD>(value.data.size()));
  }

 private:
  std::int32_t ReadStored(const std::wstring& name, RegistryValue& value) const {
    BYTE small[512];  // takes most values in one call
    DWORD type = 0;
    DWORD size = sizeof small;
    LSTATUS result = RegQueryValueExW(m_key.get(), name.c_str(), nullptr, &type, small, &size);
    if (result == ERROR_SUCCESS) {
      const auto* bytes = reinterpret_cast<const std::byte*>(small);
      value = {type, {bytes, bytes + size}};
      return 0;
    }
    std::vector<std::byte> data;
    while (result == ERROR_MORE_DATA) {  // again when somebody makes it longer meanwhile
      data.resize(size);
      result = RegQueryValueExW(m_key.get(), name.c_str(), nullptr, &type,
                                reinterpret_cast<BYTE*>(data.data()), &size);
    }
    if (result != ERROR_SUCCESS) return result;
    data.resize(size);
    value = {type, std::move(data)};
    return 0;
  }

  std::unique_ptr<WriteTurn> m_turn;  // of a key that is written
  UniqueKey m_key;
};

HKEY RootKey(Hive hive) {
  switch (hive) {
    case Hive::ClassesRoot:
      return HKEY_CLASSES_ROOT;
    case Hive::CurrentUser:
      return HKEY_CURRENT_USER;
    case Hive::LocalMachine:
      return HKEY_LOCAL_MACHINE;
    case Hive::Users:
      return HKEY_USERS;
    case Hive::CurrentConfig:
      return HKEY_CURRENT_CONFIG;
    case Hive::DynData:
      return HKEY_DYN_DATA;
  }
  return nullptr;
}

std::wstring WithoutBackslash(std::wstring path) {
  while (path.ends_with(L'\\')) path.pop_back();
  return path;
}

}  // namespace

std::int32_t Registry::OpenToRead(Hive hive, const std::wstring& path,
                                  std::unique_ptr<RegistryKey>& key) {
  HKEY opened = nullptr;
  const LSTATUS result =
      RegOpenKeyExW(RootKey(hive), WithoutBackslash(path).c_str(), 0, KEY_QUERY_VALUE, &opened);
  if (result == ERROR_SUCCESS) key = std::make_unique<Key>(UniqueKey(opened));
  return result;
}

std::int32_t Registry::OpenToWrite(Hive hive, const std::wstring& path,
                                   std::unique_ptr<RegistryKey>& key) {
  HKEY opened = nullptr;
  const LSTATUS result = RegCreateKeyExW(
      RootKey(hive), WithoutBackslash(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
      KEY_SET_VALUE | KEY_CREATE_SUB_KEY, nullptr, &opened, nullptr);
  if (result == ERROR_SUCCESS)
    key = std::make_unique<Key>(UniqueKey(opened), std::make_unique<WriteTurn>());
  return result;
}

}  // namespace orvane::win32
