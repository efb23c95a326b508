#pragma once

#include <string>
#include <unordered_map>

#include "designerapp/Handles.h"
#include "menudata/clsOrvaneData.h"
#include "platform/FileSystem.h"

namespace orvane::designerapp {

/// The pictures of items, each fetched when it is first asked for.
class ItemPictures {
 public:
  /// `size` in pixels; `files` is kept.
  ItemPictures(FileReader& files, int size);

  HIMAGELIST List() const { return m_list.get(); }
  /// The place of the item's picture in the list.
  int IndexOf(const clsOrvaneData& item);

 private:
  int Add(const clsOrvaneData& item);
  int AddBitmap(int resource);
  int AddIcon(const std::wstring& path, bool isFolder);

  FileReader& m_files;
  int m_size;
  UniqueImageList m_list;
  std::unordered_map<std::wstring, int> m_known;
};

}  // namespace orvane::designerapp
