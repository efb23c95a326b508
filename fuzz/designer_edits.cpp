// The designer's edits, chosen by the input: undone to the first menu and redone to the last, byte
// by byte, and what they end in is read again as it was written.

#include <cstdint>
#include <cstdlib>
#include <span>

#include "designer/Monkey.h"

namespace {

using namespace orvane;
using namespace orvane::test;

void CheckHistory(Desk& desk, const std::vector<std::byte>& first) {
  designer::History& edits = desk.Edits();
  while (edits.NextRedo()) edits.Redo();
  const std::vector<std::byte> last = desk.Bytes();
  while (edits.NextUndo()) edits.Undo();
  if (desk.Bytes() != first || desk.document.IsDirty()) std::abort();
  while (edits.NextRedo()) edits.Redo();
  if (desk.Bytes() != last) std::abort();
  desk.document.Save(MenuPath);
  desk.document.Open(MenuPath);
  if (desk.Bytes() != last) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> rest(data, std::min<std::size_t>(size, 400));
  const auto next = [&]() -> std::size_t {
    if (rest.empty()) return 0;
    const std::uint8_t byte = rest.front();
    rest = rest.subspan(1);
    return byte;
  };
  Desk desk;
  const std::vector<std::byte> first = desk.Bytes();
  Monkey monkey(desk, next);
  while (!rest.empty()) monkey.Act();
  CheckHistory(desk, first);
  return 0;
}
