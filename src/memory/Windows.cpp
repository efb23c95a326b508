#include "memory/Windows.h"

#include <algorithm>

#include "support/Text.h"

namespace orvane::memory {
namespace {

constexpr std::size_t MaxText = 4095;

}  // namespace

WindowHandle Windows::Add(Window window) {
  const auto handle = static_cast<WindowHandle>(m_nextHandle);
  m_nextHandle += 2;
  m_windows.push_back({handle, std::move(window)});
  return handle;
}

void Windows::Remove(WindowHandle window) {
  std::erase_if(m_windows, [&](const Entry& entry) { return entry.handle == window; });
  if (m_active == window) m_active = WindowHandle::None;
}

Windows::Window* Windows::Look(WindowHandle window) {
  const auto entry = std::ranges::find(m_windows, window, &Entry::handle);
  if (entry == m_windows.end()) return nullptr;
  if (entry->window.questionsLeft == 0) {
    Remove(window);
    return nullptr;
  }
  if (entry->window.questionsLeft > 0) --entry->window.questionsLeft;
  return &entry->window;
}

WindowHandle Windows::Parent(WindowHandle window) {
  const Window* found = m_faults.Hit() ? nullptr : Look(window);
  return found ? found->parent : WindowHandle::None;
}

std::wstring Windows::ClassName(WindowHandle window) {
  const Window* found = m_faults.Hit() ? nullptr : Look(window);
  return found ? found->className.substr(0, MaxText) : std::wstring();
}

std::wstring Windows::Caption(WindowHandle window) {
  const Window* found = m_faults.Hit() ? nullptr : Look(window);
  return found ? found->caption.substr(0, MaxText) : std::wstring();
}

WindowHandle Windows::Find(const std::wstring& className) {
  if (m_faults.Hit()) return WindowHandle::None;
  const std::wstring wanted = LowerCase(className);
  const auto entry = std::ranges::find_if(m_windows, [&](const Entry& e) {
    return e.window.parent == WindowHandle::None && LowerCase(e.window.className) == wanted;
  });
  return entry == m_windows.end() ? WindowHandle::None : entry->handle;
}

WindowHandle Windows::TopWindowOf(std::uint32_t process) const {
  const auto entry = std::ranges::find_if(m_windows, [&](const Entry& e) {
    return e.window.parent == WindowHandle::None && e.window.process == process;
  });
  return entry == m_windows.end() ? WindowHandle::None : entry->handle;
}

void Windows::Record(const char* call, WindowHandle window, std::uint32_t message,
                     std::intptr_t wParam, std::intptr_t lParam) {
  m_effects.Add(Effect(call)
                    .With("window", std::int64_t{ToNumber(window)})
                    .With("message", std::int64_t{message})
                    .With("wParam", std::int64_t{wParam})
                    .With("lParam", std::int64_t{lParam}));
}

bool Windows::Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                   std::intptr_t lParam) {
  if (m_faults.Hit() || !Look(window)) return false;
  Record("PostMessage", window, message, wParam, lParam);
  return true;
}

std::optional<std::intptr_t> Windows::Send(WindowHandle window, std::uint32_t message,
                                           std::intptr_t wParam, std::intptr_t lParam,
                                           std::uint32_t) {
  const Window* found = m_faults.Hit() ? nullptr : Look(window);
  if (!found) return std::nullopt;
  Record("SendMessage", window, message, wParam, lParam);
  if (!found->answers) return std::nullopt;
  const auto result = found->results.find(message);
  return result == found->results.end() ? 0 : result->second;
}

}  // namespace orvane::memory
