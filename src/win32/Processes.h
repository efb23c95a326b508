#pragma once

#include "platform/Processes.h"

namespace orvane::win32 {

/// The running programs of the machine.
class Processes : public orvane::Processes {
 public:
  std::vector<std::uint32_t> Ids() override;
  std::wstring Executable(std::uint32_t process) override;
  std::vector<Entry> ProcessSnapshot() override;
  std::vector<Module> ModuleSnapshot(std::uint32_t process) override;
  std::vector<std::uint32_t> ThreadSnapshot(std::uint32_t process) override;
  bool PostQuit(std::uint32_t thread) override;
  WindowOwner OwnerOf(WindowHandle window) override;
  bool Activate(std::uint32_t process) override;
};

}  // namespace orvane::win32
