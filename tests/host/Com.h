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
UniquePidl ParsePath(const std::wstring& path);

/// The shell's own data object of files in one folder.
ComPtr<IDataObject> Select(const std::wstring& folder, const std::vector<std::wstring>& names);

}  // namespace orvane::host
