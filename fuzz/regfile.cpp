// A registry export either imports or says what line is wrong; an import repeated changes nothing.

#include <cstdlib>

#include "memory/RegFile.h"
#include "support/Error.h"

namespace {

bool Import(std::span<const std::byte> bytes, orvane::memory::Registry& registry) {
  try {
    orvane::memory::ImportRegFile(bytes, registry);
    return true;
  } catch (const orvane::Error& error) {
    if (!error.Description().starts_with(L"line ")) std::abort();
    return false;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
  orvane::memory::Effects effects;
  orvane::memory::Faults faults;
  orvane::memory::SystemInfo system;
  orvane::memory::Registry registry(effects, faults, system);
  if (Import(bytes, registry) != Import(bytes, registry)) std::abort();
  if (!effects.All().empty()) std::abort();
  return 0;
}
