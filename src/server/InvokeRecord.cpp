#include "server/InvokeRecord.h"

#include <cstddef>
#include <cstring>
#include <span>

#include "win32/NativeHandles.h"

namespace orvane::server {
namespace {

// The wide verb, when the record says that it has one and is long enough to hold it.
const wchar_t* WideVerb(const CMINVOKECOMMANDINFO& record) {
  constexpr std::size_t needed = offsetof(CMINVOKECOMMANDINFOEX, lpVerbW) + sizeof(LPCWSTR);
  if (!(record.fMask & CMIC_MASK_UNICODE) || record.cbSize < needed) return nullptr;
  const auto& extended = reinterpret_cast<const CMINVOKECOMMANDINFOEX&>(record);
  return IS_INTRESOURCE(extended.lpVerbW) ? nullptr : extended.lpVerbW;
}

}  // namespace

std::optional<InvokeRequest> ReadInvokeRecord(const CMINVOKECOMMANDINFO& record,
                                              const CodePage& codePage) {
  if (record.cbSize != 0 && record.cbSize < sizeof record) return {};
  InvokeRequest request;
  request.window = win32::FromNative<WindowHandle>(record.hwnd);
  const wchar_t* wideVerb = WideVerb(record);
  request.byOffset = !wideVerb && IS_INTRESOURCE(record.lpVerb);
  if (wideVerb) {
    request.verb = wideVerb;
  } else if (request.byOffset) {
    request.offset = LOWORD(reinterpret_cast<ULONG_PTR>(record.lpVerb));
  } else {
    const std::span verb(record.lpVerb, std::strlen(record.lpVerb));
    request.verb = codePage.Decode(std::as_bytes(verb));
  }
  return request;
}

}  // namespace orvane::server
