#include "support/Error.h"

#include <new>

namespace orvane {

PendingError CaughtError() noexcept {
  try {
    throw;
  } catch (const Error& error) {
    return {error.Number(), error.Source(), error.Description(), error.OsError()};
  } catch (const std::bad_alloc&) {
    return {Error::OutOfMemory, {}, {}, 0};  // no text: there is no memory for one
  } catch (...) {
    return {Error::Internal, {}, {}, 0};
  }
}

}  // namespace orvane
