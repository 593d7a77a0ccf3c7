#include "book/scrambling.h"

#include <array>
#include <cstdint>
#include <cstring>

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

// The offsets over 96 characters (a multiple of the period and of common
// vector widths), so a block can be shifted without a branch per character.
constexpr size_t kBlock = 96;
constexpr std::array<int16_t, kBlock> BlockOffsets(int sign) {
  std::array<int16_t, kBlock> offsets{};
  for (size_t i = 0; i < kBlock; ++i)
    offsets[i] = static_cast<int16_t>(sign * kOffsets[i % kPeriod]);
  return offsets;
}

// Shifts characters one by one from index (a multiple of the period) and
// stops with error 6 at the first that leaves 0..255.
void ShiftCarefully(char* data, size_t index, size_t size, const int16_t* offsets) {
  for (size_t phase = 0; index < size; ++index, phase = (phase + 1) % kBlock) {
    const int code = static_cast<uint8_t>(data[index]) + offsets[phase];
    if (code < 0 || code > 255) throw RuntimeError(ErrorNumber::kOverflow);
    data[index] = static_cast<char>(code);
  }
}

void Shift(char* text, size_t size, int sign) {
  static constexpr std::array<int16_t, kBlock> kDescramble = BlockOffsets(1);
  static constexpr std::array<int16_t, kBlock> kScramble = BlockOffsets(-1);
  const int16_t* offsets = sign > 0 ? kDescramble.data() : kScramble.data();
  uint8_t* data = reinterpret_cast<uint8_t*>(text);
  size_t index = 0;
  for (; index + kBlock <= size; index += kBlock) {
    uint8_t shifted[kBlock];
    uint16_t outside = 0;  // a high bit set when a code left 0..255
    for (size_t i = 0; i < kBlock; ++i) {
      const int16_t code = static_cast<int16_t>(data[index + i] + offsets[i]);
      outside |= static_cast<uint16_t>(code);
      shifted[i] = static_cast<uint8_t>(code);
    }
    if ((outside & 0xFF00) != 0) break;
    std::memcpy(data + index, shifted, kBlock);
  }
  ShiftCarefully(text, index, size, offsets);
}

}  // namespace

int DescrambleOffset(size_t index) { return kOffsets[index % kPeriod]; }

void Descramble(std::string& body) { Shift(body.data(), body.size(), 1); }

void Scramble(std::string& plain) { Scramble(plain.data(), plain.size()); }

void Scramble(char* plain, size_t size) { Shift(plain, size, -1); }

}  // namespace vireo
