#include <stdexcept>

#include "Doctor.h"

namespace orvane::tool {

DoctorReport Examine() {
  throw std::runtime_error("doctor: examines an installation on Windows; run it there");
}

}  // namespace orvane::tool
