// The n-th request for memory fails, for steps of n through a whole right-click and every command:
// the handler's operations answer all the same, and nothing is left over.

#include <cstdlib>
#include <new>

#include "common/FailingNew.h"
#include "shellext/WholeClick.h"

namespace orvane::test {
namespace {

thread_local std::size_t requests = 0;
thread_local std::size_t failing = 0;

void* Allocate(std::size_t size) {
  if (++requests == failing) throw std::bad_alloc();
  if (void* block = std::malloc(size ? size : 1)) return block;
  throw std::bad_alloc();
}

}  // namespace

std::size_t FailAllocation(std::size_t n) {
  failing = n;
  return std::exchange(requests, 0);
}

}  // namespace orvane::test

void* operator new(std::size_t size) {
  return orvane::test::Allocate(size);
}
void* operator new[](std::size_t size) {
  return orvane::test::Allocate(size);
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete[](void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  std::free(block);
}

namespace orvane::test {
namespace {

/// Runs one operation of the handler; the host above it takes std::bad_alloc for out of memory.
template <class Operation>
void Try(Operation operation) {
  try {
    operation();
  } catch (const std::bad_alloc&) {
  }
}

TEST(AllocationSweep, AMenuIsBuiltAndEveryCommandRunWhicheverAllocationFails) {
  WholeClick plain;
  plain.BeginOnNote();
  FailAllocation(0);
  plain.Query();
  plain.LookAround();
  const std::size_t building = FailAllocation(0);
  const std::int32_t offsets = plain.Offsets();
  for (std::size_t n = 1; n <= building; n += 13) {
    SCOPED_TRACE(n);
    WholeClick click;
    click.BeginOnNote();
    FailAllocation(n);
    Try([&] { click.Query(); });
    Try([&] { click.LookAround(); });
    FailAllocation(0);
  }
  for (std::int32_t offset = 0; offset <= offsets; ++offset) {
    std::size_t running = 1;
    for (std::size_t n = 0; n <= running; n += 3) {
      SCOPED_TRACE(testing::Message() << "offset " << offset << ", allocation " << n);
      WholeClick click;
      click.ClickOnNote();
      FailAllocation(n);
      Try([&] { click.Invoke(offset); });
      const std::size_t count = FailAllocation(0);
      if (n == 0) running = count;
    }
  }
}

}  // namespace
}  // namespace orvane::test
