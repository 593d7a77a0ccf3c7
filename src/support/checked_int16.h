#pragma once

#include <cstdint>
#include <limits>

#include "support/runtime_error.h"

namespace vireo {

// A 16-bit signed integer whose arithmetic raises error 6 (Overflow) instead
// of wrapping, as the program's page numbers and line counts do.
class Int16 {
 public:
  constexpr Int16() = default;
  constexpr Int16(int64_t value) : value_(Check(value)) {}  // NOLINT: implicit by design

  constexpr int16_t value() const { return value_; }
  constexpr operator int() const { return value_; }  // NOLINT: reads like a plain integer

  constexpr Int16& operator+=(int64_t other) { return *this = Int16(value_ + other); }
  constexpr Int16& operator-=(int64_t other) { return *this = Int16(value_ - other); }
  constexpr Int16& operator++() { return *this += 1; }
  constexpr Int16& operator--() { return *this -= 1; }

  // Converts with the run time's rounding (nearest, ties to even), then checks.
  static Int16 FromDouble(double value);

  static constexpr int16_t Check(int64_t value) {
    if (value < std::numeric_limits<int16_t>::min() ||
        value > std::numeric_limits<int16_t>::max()) {
      throw RuntimeError(ErrorNumber::kOverflow);
    }
    return static_cast<int16_t>(value);
  }

 private:
  int16_t value_ = 0;
};

}  // namespace vireo
