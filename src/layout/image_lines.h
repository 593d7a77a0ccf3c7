#pragma once

#include <cstdint>
#include <string_view>

#include "support/checked_int16.h"

namespace vireo {

// The number after the first "=" of a picture placeholder word ("[IMG=12]"):
// it ends at the first non-digit; 0 without an "="; a number too large for
// any picture saturates at the largest 32-bit value.
int32_t ImageNumber(std::string_view word);

// The lines a picture takes on a page: its height in lines plus one, rounded
// to a 16-bit count. A line height of 0 raises error 11 (division by zero)
// for a picture with a height and error 6 (overflow) for one without.
Int16 ImageLines(double height, double line_height);

}  // namespace vireo
