#pragma once

#include <cstdint>

#include "support/Error.h"

namespace orvane::test {

/// The number of the error that the call ends in; 0 when it ends well.
template <class Call>
std::int32_t ErrorOf(Call call) {
  try {
    call();
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

}  // namespace orvane::test
