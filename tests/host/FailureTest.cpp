// Windows refuses: each function that the DLL imports in its turn, and objects when there are none
// left. The menu is smaller then, or empty; it comes back whole.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "host/DialogScript.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/WholeClick.h"

namespace orvane::host {
namespace {

struct Import {
  std::string library, name;
  void** slot;
};

std::vector<Import> ImportsOf(HMODULE module) {
  auto* base = reinterpret_cast<std::byte*>(module);
  const auto at = [base]<class Type>(Type*, DWORD offset) {
    return reinterpret_cast<Type*>(base + offset);
  };
  const auto* headers = at(static_cast<IMAGE_NT_HEADERS*>(nullptr),
                           static_cast<DWORD>(reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew));
  const auto& place = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  std::vector<Import> imports;
  const auto* library = at(static_cast<IMAGE_IMPORT_DESCRIPTOR*>(nullptr), place.VirtualAddress);
  for (; library->Name != 0; ++library) {
    const auto* name = at(static_cast<ULONGLONG*>(nullptr), library->OriginalFirstThunk);
    void** slot = at(static_cast<void**>(nullptr), library->FirstThunk);
    for (; *name != 0; ++name, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL64(*name)) continue;
      const auto* byName =
          at(static_cast<IMAGE_IMPORT_BY_NAME*>(nullptr), static_cast<DWORD>(*name));
      imports.push_back({at(static_cast<char*>(nullptr), library->Name), byName->Name, slot});
    }
  }
  return imports;
}

/// What cannot fail, and of which any other answer is another Windows: the C library, a thread's
/// own storage, locks, and the unwinding of exceptions.
bool CannotFail(const Import& import) {
  if (import.library == "msvcrt.dll") return true;
  constexpr const char* Parts[] = {"Tls", "CriticalSection", "SRWLock",
                                   "Rtl", "Exception",       "CurrentThread"};
  return std::ranges::any_of(
      Parts, [&](const char* part) { return import.name.find(part) != std::string::npos; });
}

/// How a function of that name says that it failed.
LONG_PTR FailureOf(std::string_view name) {
  constexpr struct {
    std::string_view beginning;
    LONG_PTR result;
  } Rows[] = {{"Reg", ERROR_ACCESS_DENIED},
              {"CoTaskMem", 0},
              {"Co", E_FAIL},
              {"Ole", E_FAIL},
              {"SHGetSpecialFolderLocation", E_FAIL},
              {"SHGetDesktopFolder", E_FAIL},
              {"SHParseDisplayName", E_FAIL},
              {"CreateFile", -1},
              {"FindFirstFile", -1},
              {"GetFileAttributes", -1},
              {"WaitForSingleObject", WAIT_FAILED}};
  for (const auto& row : Rows)
    if (name.starts_with(row.beginning)) return row.result;
  return 0;
}

LONG_PTR failure;

/// In place of any function: arguments are their caller's to clear.
LONG_PTR Fail() {
  SetLastError(ERROR_NOT_ENOUGH_MEMORY);
  return failure;
}

/// The import fails as long as the object lives.
class Failing {
 public:
  explicit Failing(const Import& import) : m_slot(import.slot), m_function(*import.slot) {
    failure = FailureOf(import.name);
    Put(reinterpret_cast<void*>(&Fail));
  }
  ~Failing() { Put(m_function); }
  Failing(const Failing&) = delete;
  Failing& operator=(const Failing&) = delete;

 private:
  void Put(void* function) {
    DWORD protection = 0;
    VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &protection);
    *m_slot = function;
    VirtualProtect(m_slot, sizeof *m_slot, protection, &protection);
  }

  void** m_slot;
  void* m_function;
};

TEST(Failure, OfAnyImportLeavesTheHostAlive) {
  DialogScript user{{}, L"orvane.dll"};
  WholeClick click;
  const WholeClick::Outcome whole = click.Run();
  const Library library;
  const std::vector<Import> imports = ImportsOf(library.Module());
  EXPECT_GT(imports.size(), 200u);
  for (const Import& import : imports) {
    if (CannotFail(import)) continue;
    RecordProperty("import", import.name);
    const Failing failing(import);
    EXPECT_LE(click.Run().count, whole.count) << import.name;
  }
  EXPECT_EQ(click.Run().count, whole.count);
}

/// All objects of a kind that the process may have, but for some.
template <class Handle>
class Exhausted {
 public:
  template <class Make, class Remove>
  Exhausted(std::size_t left, Make make, Remove remove) : m_remove(remove) {
    while (const Handle handle = make()) m_handles.push_back(handle);
    for (; left > 0 && !m_handles.empty(); --left) Drop();
  }
  ~Exhausted() {
    while (!m_handles.empty()) Drop();
  }
  Exhausted(const Exhausted&) = delete;
  Exhausted& operator=(const Exhausted&) = delete;

  std::size_t Count() const { return m_handles.size(); }

 private:
  void Drop() {
    m_remove(m_handles.back());
    m_handles.pop_back();
  }

  std::vector<Handle> m_handles;
  std::function<void(Handle)> m_remove;
};

TEST(Failure, OfWindowsObjectsMakesASmallerMenuAndLeaksNothing) {
  DialogScript user{{}, L"orvane.dll"};
  WholeClick click;
  WholeClick::Outcome whole;
  for (int i = 0; i < 50; ++i) whole = click.Run();  // fills the system's own caches
  const LeakCount before = LeakCount::Now();
  for (const std::size_t left : {0, 1, 2, 3, 5, 8, 20, 100}) {
    {
      const Exhausted<HGDIOBJ> none(
          left, [] { return CreateSolidBrush(1); }, DeleteObject);
      EXPECT_GT(none.Count(), 10'000u);
      EXPECT_LE(click.Run().count, whole.count) << left;
    }
    const Exhausted<HMENU> none(left, CreateMenu, DestroyMenu);
    EXPECT_GT(none.Count(), 10'000u);
    EXPECT_LE(click.Run().count, whole.count) << left;
  }
  EXPECT_EQ(click.Run().count, whole.count);
  EXPECT_EQ(LeakCount::Now().gdiObjects, before.gdiObjects);
  EXPECT_EQ(LeakCount::Now().userHandles, before.userHandles);
}

}  // namespace
}  // namespace orvane::host
