#pragma once

#include <cstddef>

namespace orvane::test {

/// The n-th request for memory of this thread from now on fails, once, with std::bad_alloc; 0: none
/// does. Answers how many there were since the last call.
std::size_t FailAllocation(std::size_t n);

}  // namespace orvane::test
