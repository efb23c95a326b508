#include <windows.h>

#include <shlobj.h>

#include "win32/ComPointer.h"
#include "win32/Launcher.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"

// Explorer's windows give their shell browser away as a bare address. Other windows use the same
// message numbers for other things, so nothing of the address is believed before it was looked at.

namespace orvane::win32 {
namespace {

constexpr UINT GetShellBrowser = WM_USER + 7;
constexpr UINT BrowserMoved = WM_USER + 10;

/// Asks a window of this thread, with the address of a zero; 0 for any other window.
std::intptr_t Ask(WindowHandle window, UINT message) {
  std::intptr_t zero = 0;
  const HWND native = ToNative<HWND>(window);
  if (GetWindowThreadProcessId(native, nullptr) != GetCurrentThreadId()) return 0;
  return SendMessageW(native, message, 0, reinterpret_cast<LPARAM>(&zero));
}

/// Whether `count` pointers can be read at the address, in memory of one of the given protections.
bool IsMemory(const void* address, std::size_t count, DWORD protections) {
  MEMORY_BASIC_INFORMATION region;
  const auto start = reinterpret_cast<std::uintptr_t>(address);
  if (start % alignof(void*) != 0 || !VirtualQuery(address, &region, sizeof region)) return false;
  const auto end = reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize;
  return region.State == MEM_COMMIT && (region.Protect & protections) != 0 &&
         (region.Protect & PAGE_GUARD) == 0 && (end - start) / sizeof(void*) >= count;
}

/// Whether the address looks like an object with a table of methods in front.
bool IsInterface(const void* object) {
  constexpr DWORD Code =
      PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
  constexpr DWORD Data = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                         PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
  constexpr std::size_t UnknownMethods = 3;
  if (!IsMemory(object, 1, Data)) return false;
  const void* const* methods = *static_cast<const void* const* const*>(object);
  if (!IsMemory(methods, UnknownMethods, Data)) return false;
  MEMORY_BASIC_INFORMATION region;
  return VirtualQuery(methods[0], &region, sizeof region) && region.State == MEM_COMMIT &&
         (region.Protect & Code) != 0;
}

/// The shell browser at the address; null when there is none.
ComPointer<IShellBrowser> BrowserAt(std::intptr_t address) {
  ComPointer<IShellBrowser> browser;
  auto* object = reinterpret_cast<IUnknown*>(address);
  if (IsInterface(object))
    object->QueryInterface(IID_IShellBrowser, reinterpret_cast<void**>(browser.Out()));
  return browser;
}

}  // namespace

std::intptr_t Launcher::ShellBrowser(WindowHandle window) {
  const std::intptr_t answer = Ask(window, GetShellBrowser);
  return BrowserAt(answer) ? answer : 0;
}

std::int32_t Launcher::BrowseObject(std::intptr_t shellBrowser, const ItemIdList& item) {
  const PCIDLIST_ABSOLUTE list = ToNativeList(item);
  const ComPointer<IShellBrowser> browser = BrowserAt(shellBrowser);
  if (!list || !browser) return E_POINTER;
  return browser->BrowseObject(list, SBSP_DEFBROWSER | SBSP_DEFMODE);
}

void Launcher::BrowsingDone(WindowHandle window) {
  Ask(window, BrowserMoved);
}

}  // namespace orvane::win32
