#pragma once

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "memory/Windows.h"
#include "platform/Processes.h"

namespace orvane::memory {

/// Running programs as records. The windows say which of them owns them. A WM_QUIT is an effect
/// ("PostThreadMessage"); nothing ends.
class Processes : public orvane::Processes {
 public:
  struct Process {
    std::uint32_t id = 1;
    std::wstring executable = {};
    bool canBeOpened = true;
    std::vector<std::uint32_t> threads = {1};
    std::wstring file = {};  // as the process walk names it; the executable when empty
  };

  Processes(Windows& windows, Effects& effects, Faults& faults)
      : m_windows(windows), m_effects(effects), m_faults(faults) {}

  std::vector<std::uint32_t> Ids() override;
  std::wstring Executable(std::uint32_t process) override;
  std::vector<Entry> ProcessSnapshot() override;
  std::vector<Module> ModuleSnapshot(std::uint32_t process) override;
  std::vector<std::uint32_t> ThreadSnapshot(std::uint32_t process) override;
  bool PostQuit(std::uint32_t thread) override;
  WindowOwner OwnerOf(WindowHandle window) override;
  bool Activate(std::uint32_t process) override;

  std::vector<Process> running;  // in the system's order

 private:
  const Process* Find(std::uint32_t id);

  Windows& m_windows;
  Effects& m_effects;
  Faults& m_faults;
};

}  // namespace orvane::memory
