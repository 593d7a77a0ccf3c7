#include "support/checked_int16.h"

#include <cfenv>
#include <cmath>

namespace vireo {

Int16 Int16::FromDouble(double value) {
  if (!std::isfinite(value) || value < -32768.5 || value > 32767.5) {
    throw RuntimeError(ErrorNumber::kOverflow);
  }
  // nearbyint follows the default rounding mode: to nearest, ties to even.
  return Int16(static_cast<int64_t>(std::nearbyint(value)));
}

}  // namespace vireo
