#include "win32/DataObject.h"

#include <ole2.h>

#include <algorithm>
#include <climits>
#include <optional>
#include <span>

#include "support/DropFiles.h"

namespace orvane::win32 {
namespace {

class Medium {
 public:
  ~Medium() { ReleaseStgMedium(&m_medium); }
  STGMEDIUM* Out() { return &m_medium; }
  HGLOBAL Memory() const { return m_medium.tymed == TYMED_HGLOBAL ? m_medium.hGlobal : nullptr; }

 private:
  STGMEDIUM m_medium{};
};

class Lock {
 public:
  explicit Lock(HGLOBAL memory) : m_memory(memory), m_data(memory ? GlobalLock(memory) : nullptr) {}
  ~Lock() {
    if (m_data) GlobalUnlock(m_memory);
  }
  explicit operator bool() const { return m_data != nullptr; }
  std::span<const std::byte> Bytes() const {
    return {static_cast<const std::byte*>(m_data), GlobalSize(m_memory)};
  }

 private:
  HGLOBAL m_memory;
  void* m_data;
};

std::wstring DecodeAnsi(std::span<const std::byte> bytes) {
  const auto* text = reinterpret_cast<const char*>(bytes.data());
  const int length = static_cast<int>(std::min<std::size_t>(bytes.size(), INT_MAX));
  std::wstring decoded(
      static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, length, decoded.data(), static_cast<int>(decoded.size()));
  return decoded;
}

}  // namespace

std::int32_t DataObject::Files(FileNames& names) {
  if (!m_object) return E_POINTER;
  FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, 0, TYMED_HGLOBAL};
  Medium medium;
  HRESULT result = m_object->GetData(&format, medium.Out());
  if (FAILED(result)) {
    // "All of it" is -1; some objects take nothing else, and a failure leaves the medium empty.
    format.lindex = -1;
    if (FAILED(m_object->GetData(&format, medium.Out()))) return result;
  }
  const Lock lock(medium.Memory());
  if (!lock) return E_OUTOFMEMORY;
  std::optional<FileNames> read = ReadDropFiles(lock.Bytes(), DecodeAnsi);
  if (!read) return HRESULT_FROM_WIN32(ERROR_INVALID_DATA);
  names = std::move(*read);
  return S_OK;
}

}  // namespace orvane::win32
