#include "layout/image_lines.h"

#include <limits>

#include "support/runtime_error.h"

namespace vireo {

int32_t ImageNumber(std::string_view word) {
  const size_t equals = word.find('=');
  int64_t number = 0;
  if (equals == std::string_view::npos) return 0;
  for (size_t i = equals + 1; i < word.size() && word[i] >= '0' && word[i] <= '9'; ++i) {
    number = number * 10 + (word[i] - '0');
    if (number > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
  }
  return static_cast<int32_t>(number);
}

Int16 ImageLines(double height, double line_height) {
  constexpr auto kDivisionByZero = static_cast<ErrorNumber>(11);
  if (line_height == 0 && height != 0) throw RuntimeError(kDivisionByZero, "Division by zero");
  if (line_height == 0) throw RuntimeError(ErrorNumber::kOverflow);
  return Int16::FromDouble(height / line_height + 1);
}

}  // namespace vireo
