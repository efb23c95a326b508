#pragma once

#include "menudata/clsMRU.h"
#include "platform/Dialogs.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"

namespace orvane {

/// The dialog that asks where to copy or move the selection to, and offers the last destinations.
class frmCopyTo : public CopyToModel {
 public:
  struct Services {
    Dialogs& dialogs;
    FileReader& files;
    Shell& shell;
    MessageBoxes& boxes;
    clsMRU& copyTo;
    bool showBackground;
  };

  explicit frmCopyTo(const Services& services) : m_services(services) {}

  std::wstring m_szDest;   // valid while m_bOk
  bool m_bCopyTo = false;  // false: move
  bool m_bOk = false;

  void ShowModal(WindowHandle owner);

  std::wstring Title() override;
  std::wstring InitialDestination() override;
  std::vector<Slot> Slots() override;
  bool HasBackground() override { return m_services.showBackground; }
  std::wstring Choose(std::size_t slot) override;
  std::wstring Browse(WindowHandle dialog, const std::wstring& destination) override;
  /// Takes an existing folder, which then leads the list of the last destinations.
  bool Accept(const std::wstring& destination) override;

 private:
  Services m_services;
};

}  // namespace orvane
