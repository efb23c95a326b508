#pragma once

#include <string>
#include <unordered_map>

#include "designerapp/Handles.h"
#include "graphics/IconFinder.h"
#include "menudata/clsOrvaneData.h"
#include "platform/Platform.h"

namespace orvane::designerapp {

/// The pictures of items, each fetched when it is first asked for.
class ItemPictures {
 public:
  /// `size` in pixels; what the platform offers is kept.
  ItemPictures(const Platform& platform, int size);

  HIMAGELIST List() const { return m_list.get(); }
  /// The place of the item's picture in the list; a stand-in for the shell's own icons unless these
  /// are wanted.
  int IndexOf(const clsOrvaneData& item, bool withIcons);

 private:
  int Add(const clsOrvaneData& item);
  int AddBitmap(int resource);
  int AddIcon(const SystemIcon& icon);

  ShellIcons& m_icons;
  IconFinder m_finder;
  int m_size;
  UniqueImageList m_list;
  std::unordered_map<std::wstring, int> m_known;  // by what the picture depends on
  std::unordered_map<std::int32_t, int> m_taken;  // by the shell's place, or minus a resource
};

}  // namespace orvane::designerapp
