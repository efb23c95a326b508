#include "win32/NativeItemIdList.h"

#include <cstring>

namespace orvane::win32 {

ItemIdList CopyOf(PCIDLIST_ABSOLUTE list) {
  ItemIdList item;
  if (!list) return item;
  const auto* bytes = reinterpret_cast<const std::byte*>(list);
  item.bytes.assign(bytes, bytes + ILGetSize(list));
  return item;
}

PCIDLIST_ABSOLUTE ToNativeList(const ItemIdList& item) {
  const std::size_t size = item.bytes.size();
  for (std::size_t at = 0; at + sizeof(USHORT) <= size;) {
    USHORT itemSize = 0;
    std::memcpy(&itemSize, &item.bytes[at], sizeof itemSize);
    if (itemSize == 0) return reinterpret_cast<PCIDLIST_ABSOLUTE>(item.bytes.data());
    if (itemSize < sizeof(USHORT)) break;
    at += itemSize;
  }
  return nullptr;
}

}  // namespace orvane::win32
