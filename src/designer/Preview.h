#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "designer/Rehearsal.h"
#include "designer/Sample.h"
#include "shellext/ContextMenuHandler.h"

namespace orvane::designer {

/// One right-click on the sample, answered by the handler for a menu that need not be saved.
/// Commands are rehearsed: nothing happens, and nothing is logged.
class Preview {
 public:
  Preview(const Platform& platform, std::vector<std::byte> definition, const Sample& sample);
  Preview(const Preview&) = delete;
  Preview& operator=(const Preview&) = delete;

  /// Fills the menu, which has to live as long as this object.
  void Build(MenuHandle menu);

  ContextMenuHandler& Handler() { return m_handler; }

  static constexpr std::int32_t FirstId = 1;
  static constexpr std::int32_t LastId = 30000;

  /// The entry's text for the status bar; empty without one.
  std::wstring HelpText(std::int32_t id) const;

  /// What choosing the entry does, in words.
  std::wstring Outcome(std::int32_t id);

 private:
  Rehearsal m_rehearsal;
  ModuleGlobals m_globals;
  ContextMenuHandler m_handler;
};

}  // namespace orvane::designer
