#include "DoctorProbe.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <array>

#include "win32/ComPointer.h"

namespace orvane::tool {
namespace {

constexpr CLSID Class = {
    0x493e3910, 0xbc83, 0x443b, {0x90, 0x17, 0xf5, 0xb5, 0x3d, 0xb5, 0xf5, 0xc4}};

struct TaskMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};
using Item = std::unique_ptr<ITEMIDLIST, TaskMemory>;

Item ItemOf(const std::wstring& path) {
  PIDLIST_ABSOLUTE item = nullptr;
  SHParseDisplayName(path.c_str(), nullptr, &item, 0, nullptr);
  return Item(item);
}

/// Runs it; answers the milliseconds it took.
template <class Action>
double Timed(Action action) {
  LARGE_INTEGER frequency;
  LARGE_INTEGER begin;
  LARGE_INTEGER end;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&begin);
  action();
  QueryPerformanceCounter(&end);
  return 1000.0 * static_cast<double>(end.QuadPart - begin.QuadPart) /
         static_cast<double>(frequency.QuadPart);
}

bool InRange(HMENU menu, UINT end) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_SUBMENU;
    GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
    if (info.hSubMenu
            ? !InRange(info.hSubMenu, end)
            : !(info.fType & MFT_SEPARATOR) && (info.wID < DoctorProbe::First || info.wID >= end))
      return false;
  }
  return true;
}

}  // namespace

struct DoctorProbe::Handler {
  ~Handler() { DestroyMenu(menu); }

  Item folder;
  win32::ComPointer<IDataObject> selection;
  win32::ComPointer<IShellExtInit> init;
  win32::ComPointer<IContextMenu> contextMenu;
  HMENU menu = CreatePopupMenu();
};

DoctorProbe::DoctorProbe(const std::wstring& path, bool background)
    : m_handler(std::make_unique<Handler>()) {
  m_handler->folder = ItemOf(path);
  if (!background && m_handler->folder) {
    const Item child(ILClone(ILFindLastID(m_handler->folder.get())));
    ILRemoveLastID(m_handler->folder.get());
    PCUIDLIST_RELATIVE children[] = {child.get()};
    CIDLData_CreateFromIDArray(m_handler->folder.get(), 1, children, m_handler->selection.Out());
  }
  Create();
  if (SUCCEEDED(created)) Query();
}

DoctorProbe::~DoctorProbe() = default;

void DoctorProbe::Create() {
  created = CoCreateInstance(Class, nullptr, CLSCTX_INPROC_SERVER, IID_IShellExtInit,
                             reinterpret_cast<void**>(m_handler->init.Out()));
  if (FAILED(created)) return;
  created = m_handler->init->QueryInterface(IID_IContextMenu,
                                            reinterpret_cast<void**>(m_handler->contextMenu.Out()));
}

void DoctorProbe::Query() {
  initializing = Timed([this] {
    initialized =
        m_handler->init->Initialize(m_handler->folder.get(), m_handler->selection.Get(), nullptr);
  });
  if (FAILED(initialized)) return;
  querying = Timed([this] {
    queried = m_handler->contextMenu->QueryContextMenu(m_handler->menu, 0, First, Last, CMF_NORMAL);
  });
}

bool DoctorProbe::HasPopup() const {
  for (int i = 0; i < GetMenuItemCount(m_handler->menu); ++i) {
    const HMENU popup = GetSubMenu(m_handler->menu, i);
    if (popup && GetMenuItemCount(popup) > 0) return true;
  }
  return false;
}

bool DoctorProbe::IdentifiersInRange() const {
  const UINT end = First + static_cast<UINT>(queried);
  return end <= Last + 1 && InRange(m_handler->menu, end);
}

bool DoctorProbe::RefusesForeignVerb() const {
  CMINVOKECOMMANDINFO record{};
  record.cbSize = sizeof record;
  record.fMask = CMIC_MASK_FLAG_NO_UI;
  record.lpVerb = "orvane.doctor.asks";
  return FAILED(m_handler->contextMenu->InvokeCommand(&record));
}

bool DoctorProbe::TerminatesTexts() const {
  constexpr wchar_t Poison = 0xABCD;
  for (long i = 0; i < queried; ++i) {
    std::array<wchar_t, 12> text;
    text.fill(Poison);
    m_handler->contextMenu->GetCommandString(static_cast<UINT_PTR>(i), GCS_HELPTEXTW, nullptr,
                                             reinterpret_cast<LPSTR>(text.data()), 8);
    const bool untouched = std::ranges::count(text, Poison) == 12;
    const bool beyond =
        std::any_of(text.begin() + 8, text.end(), [](wchar_t c) { return c != Poison; });
    if (beyond ||
        (!untouched && std::find(text.begin(), text.begin() + 8, L'\0') == text.begin() + 8))
      return false;
  }
  return true;
}

}  // namespace orvane::tool
