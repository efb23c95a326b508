#pragma once

#include <windows.h>

#include <shlobj.h>
#include <wrl/client.h>

#include <memory>
#include <string>
#include <vector>

namespace orvane::host {

using Microsoft::WRL::ComPtr;

/// A thread's stay in its own apartment.
class Apartment {
 public:
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

struct TaskMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};
using UniquePidl = std::unique_ptr<ITEMIDLIST, TaskMemory>;

/// The item of an existing path; null when the shell does not know it.
inline UniquePidl ParsePath(const std::wstring& path) {
  PIDLIST_ABSOLUTE item = nullptr;
  SHParseDisplayName(path.c_str(), nullptr, &item, 0, nullptr);
  return UniquePidl(item);
}

/// The shell's own data object of files in one folder.
inline ComPtr<IDataObject> Select(const std::wstring& folder,
                                  const std::vector<std::wstring>& names) {
  std::vector<UniquePidl> items;
  std::vector<PCUIDLIST_RELATIVE> children;
  for (const std::wstring& name : names) {
    items.push_back(ParsePath(folder + L'\\' + name));
    children.push_back(ILFindLastID(items.back().get()));
  }
  ComPtr<IDataObject> object;
  CIDLData_CreateFromIDArray(ParsePath(folder).get(), static_cast<UINT>(children.size()),
                             children.data(), &object);
  return object;
}

}  // namespace orvane::host
