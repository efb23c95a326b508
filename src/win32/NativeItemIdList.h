#pragma once

#include <windows.h>

#include <shlobj.h>

#include "platform/ItemIdList.h"

namespace orvane::win32 {

/// Owner of a list that the shell allocated.
class ShellItemIdList {
 public:
  ShellItemIdList() = default;
  explicit ShellItemIdList(PIDLIST_ABSOLUTE list) : m_list(list) {}
  ShellItemIdList(const ShellItemIdList&) = delete;
  ShellItemIdList& operator=(const ShellItemIdList&) = delete;
  ~ShellItemIdList() { CoTaskMemFree(m_list); }

  PIDLIST_ABSOLUTE* Out() { return &m_list; }
  PCIDLIST_ABSOLUTE get() const { return m_list; }

 private:
  PIDLIST_ABSOLUTE m_list = nullptr;
};

/// A copy of a list that belongs to the shell; none for null.
ItemIdList CopyOf(PCIDLIST_ABSOLUTE list);

/// The list as the shell takes it, valid as long as `item` is; null for none and for bytes that are
/// no list.
PCIDLIST_ABSOLUTE ToNativeList(const ItemIdList& item);

}  // namespace orvane::win32
