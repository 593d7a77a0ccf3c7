#include "book/scrambling.h"

#include <array>
#include <cstdint>

#include "support/runtime_error.h"

namespace vireo {
namespace {

constexpr size_t kPeriod = 12;

// One period of offsets, worked out by running the unpacker's counter.
constexpr std::array<int, kPeriod> kOffsets = [] {
  std::array<int, kPeriod> offsets{};
  int k = 0;
  bool rising = false;
  bool subtract = true;
  for (size_t i = 0; i < kPeriod; ++i) {
    offsets[i] = subtract ? -(k + 2) : 2 - k;
    subtract = !subtract;
    k += rising ? 1 : -1;
    if (k == 5 || k == -1) rising = !rising;
  }
  // After one period the counter is back where it started.
  if (k != 0 || rising || !subtract) throw "the offset pattern does not repeat every 12";
  return offsets;
}();

void Shift(std::string& text, int sign) {
  char* data = text.data();
  const size_t size = text.size();
  size_t phase = 0;
  for (size_t index = 0; index < size; ++index) {
    const int code = static_cast<uint8_t>(data[index]) + sign * kOffsets[phase];
    if (code < 0 || code > 255) throw RuntimeError(ErrorNumber::kOverflow);
    data[index] = static_cast<char>(code);
    if (++phase == kPeriod) phase = 0;
  }
}

}  // namespace

int DescrambleOffset(size_t index) { return kOffsets[index % kPeriod]; }

void Descramble(std::string& body) { Shift(body, 1); }

void Scramble(std::string& plain) { Shift(plain, -1); }

}  // namespace vireo
