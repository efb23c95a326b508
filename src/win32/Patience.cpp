#include "win32/Patience.h"

#include <algorithm>

#include "win32/UniqueHandle.h"

namespace orvane::win32 {

namespace {

struct Task {
  std::function<void()> work;
  UniqueKernelHandle done;
  HMODULE module = nullptr;
};

DWORD WINAPI RunTask(void* parameter) {
  HMODULE module = nullptr;
  {
    const std::unique_ptr<std::shared_ptr<Task>> task(
        static_cast<std::shared_ptr<Task>*>(parameter));
    module = (*task)->module;
    (*task)->work();
    SetEvent((*task)->done.get());
  }
  FreeLibraryAndExitThread(module, 0);
}

/// Whether the event comes in time.
bool IsSet(HANDLE event, const Patience& patience, const std::wstring& path) {
  for (std::uint32_t left = patience.For(path);;) {
    const DWORD slice = std::min(left, Patience::Slice);
    if (WaitForSingleObject(event, slice) == WAIT_OBJECT_0) return true;
    if (left != Patience::Endless) left -= slice;
    if (left == 0) return patience.RunOut(path), false;
    if (patience.Ends()) return false;
  }
}

}  // namespace

bool RunWithPatience(std::function<void()> work, const Patience& patience,
                     const std::wstring& path) {
  if (patience.For(path) == 0) return false;
  constexpr SIZE_T StackSize = 256 << 10;
  const auto task = std::make_shared<Task>();
  task->work = std::move(work);
  task->done.reset(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  if (!task->done) return false;
  auto parameter = std::make_unique<std::shared_ptr<Task>>(task);
  // The DLL must not be unloaded under the thread's feet.
  if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                          reinterpret_cast<const wchar_t*>(&RunTask), &task->module)) {
    return false;
  }
  const UniqueKernelHandle thread(CreateThread(nullptr, StackSize, &RunTask, parameter.get(),
                                               STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr));
  if (!thread) return FreeLibrary(task->module), false;
  parameter.release();
  return IsSet(task->done.get(), patience, path);
}

}  // namespace orvane::win32
