#include "host/Com.h"

namespace orvane::host {

UniquePidl ParsePath(const std::wstring& path) {
  PIDLIST_ABSOLUTE item = nullptr;
  SHParseDisplayName(path.c_str(), nullptr, &item, 0, nullptr);
  return UniquePidl(item);
}

ComPtr<IDataObject> Select(const std::wstring& folder, const std::vector<std::wstring>& names) {
  ComPtr<IShellFolder> desktop, parent;
  const UniquePidl folderItem = ParsePath(folder);
  if (!folderItem || FAILED(SHGetDesktopFolder(&desktop)) ||
      FAILED(desktop->BindToObject(folderItem.get(), nullptr, IID_IShellFolder,
                                   reinterpret_cast<void**>(parent.GetAddressOf())))) {
    return nullptr;
  }
  std::vector<UniquePidl> owned;
  std::vector<PCUITEMID_CHILD> items;
  for (std::wstring name : names) {
    PIDLIST_RELATIVE item = nullptr;
    if (FAILED(parent->ParseDisplayName(nullptr, nullptr, name.data(), nullptr, &item, nullptr))) {
      return nullptr;
    }
    owned.emplace_back(item);
    items.push_back(item);
  }
  ComPtr<IDataObject> object;
  parent->GetUIObjectOf(nullptr, static_cast<UINT>(items.size()), items.data(), IID_IDataObject,
                        nullptr, reinterpret_cast<void**>(object.GetAddressOf()));
  return object;
}

}  // namespace orvane::host
