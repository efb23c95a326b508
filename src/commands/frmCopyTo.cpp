#include "commands/frmCopyTo.h"

#include "commands/Browser.h"
#include "commands/Warning.h"
#include "menudata/ShellPaths.h"
#include "support/ProductName.h"
#include "support/Trace.h"

namespace orvane {
namespace {

// "1. " before the destination in a slot's caption.
constexpr std::size_t NumberLength = 3;

}  // namespace

void frmCopyTo::ShowModal(WindowHandle owner) {
  m_bOk = m_services.dialogs.ShowCopyTo(owner, *this) && m_bOk;
}

std::wstring frmCopyTo::Title() {
  return std::wstring(ProductName) + (m_bCopyTo ? L" - Copy To" : L" - Move To");
}

std::wstring frmCopyTo::InitialDestination() {
  return m_services.copyTo.FileCount() > 0 ? Choose(0) : std::wstring();
}

std::vector<frmCopyTo::Slot> frmCopyTo::Slots() {
  const clsMRU& list = m_services.copyTo;
  std::vector<Slot> slots;
  for (std::int32_t i = 1; i <= list.MaxFileCount(); ++i) {
    const std::wstring number = std::to_wstring(i) + L".";
    const bool used = i <= list.FileCount();
    slots.push_back({used ? number + L" " + list.File(i) : number, used});
  }
  return slots;
}

std::wstring frmCopyTo::Choose(std::size_t slot) {
  const std::wstring caption = Slots().at(slot).caption;
  return caption.size() > NumberLength ? caption.substr(NumberLength) : std::wstring();
}

std::wstring frmCopyTo::Browse(WindowHandle dialog, const std::wstring& destination) {
  Browser browser(m_services.dialogs, m_services.shell, m_services.boxes);
  std::wstring folder = browser.BrowseForFolder(dialog, L"Select the destination folder:", L"");
  return folder.empty() ? destination : folder;
}

bool frmCopyTo::Accept(const std::wstring& destination) {
  if (destination.empty() || !IsDirectory(m_services.files, destination)) {
    Warn(m_services.boxes, L"Destination folder does not exist!");
    return false;
  }
  m_services.copyTo.Remember(destination);
  m_szDest = destination;
  m_bOk = true;
  return true;
}

}  // namespace orvane
