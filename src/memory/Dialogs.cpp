#include "memory/Dialogs.h"

#include <string_view>

namespace orvane::memory {
namespace {

constexpr WindowHandle CopyToWindow{0x30002};
constexpr std::uint32_t Validate = 0x20;  // BIF_VALIDATE

/// Number of the slot in "mru_3", 0-based; `slots` when there is no such used slot.
std::size_t SlotOf(std::wstring_view answer, const std::vector<CopyToModel::Slot>& slots) {
  for (std::size_t i = 0; i < slots.size(); ++i) {
    if (slots[i].used && answer == L"mru_" + std::to_wstring(i + 1)) return i;
  }
  return slots.size();
}

}  // namespace

bool Dialogs::ShowCopyTo(WindowHandle, CopyToModel& model) {
  if (m_faults.Hit()) return false;
  shownTitles.push_back(model.Title());
  const std::vector<CopyToModel::Slot> slots = model.Slots();
  std::wstring destination = model.InitialDestination();
  while (const auto answer = m_answers.Take()) {
    const std::size_t slot = SlotOf(*answer, slots);
    if (*answer == L"cancel") return false;
    if (slot < slots.size()) {
      destination = model.Choose(slot);
    } else if (*answer == L"browse") {
      destination = model.Browse(CopyToWindow, destination);
    } else {
      if (*answer != L"ok") destination = *answer;
      if (model.Accept(destination)) return true;
    }
  }
  return false;
}

class Dialogs::Progress : public ProgressView {
 public:
  Progress(Dialogs& dialogs, ProgressModel& model) : m_dialogs(dialogs), m_model(model) {}

  void ShowFolder(const std::wstring& folder) override {
    m_dialogs.shownFolders.push_back(folder);
    if (m_dialogs.foldersUntilCancel < 0) return;
    if (m_dialogs.foldersUntilCancel-- == 0) m_model.Cancel();
  }
  void ShowCount(std::size_t names) override { m_dialogs.shownCount = names; }

 private:
  Dialogs& m_dialogs;
  ProgressModel& m_model;
};

bool Dialogs::ShowProgress(WindowHandle, ProgressModel& model) {
  if (m_faults.Hit()) return false;
  shownTitles.push_back(model.Title());
  const std::wstring* next = m_answers.Peek();
  if (next && *next == L"cancel") {
    m_answers.Take();
    model.Cancel();
  }
  Progress progress(*this, model);
  model.Run(progress);
  return true;
}

class Dialogs::BrowseRecord : public BrowseWindow {
 public:
  void Select(const std::wstring& path) override { selected = path; }
  void Expand(const std::wstring&) override {}
  void SetStatus(const std::wstring&) override {}

  std::wstring selected;
};

Dialogs::Picked Dialogs::Browse(WindowHandle owner, const ItemIdList&, const std::wstring& title,
                                std::uint32_t flags, BrowseModel& model) {
  if (m_faults.Hit()) return {};
  shownTitles.push_back(title);
  BrowseRecord window;
  model.Opened(window);
  while (const auto answer = m_answers.Take()) {
    if (*answer == L"cancel") break;
    const std::wstring path = *answer == L"ok" ? window.selected : *answer;
    if (ItemIdList item = m_shell.Parse(owner, path)) {
      model.Selected(window, item);
      std::wstring displayName = m_shell.DisplayName(item);
      return {std::move(item), std::move(displayName)};
    }
    if (!(flags & Validate) || !model.InvalidEntry()) break;
  }
  return {};
}

}  // namespace orvane::memory
