#pragma once

// Helpers for the book tests: hand-built packed bodies.

#include <gtest/gtest.h>

#include <string>

namespace vireo::test {

// Descrambling offsets of one 12-character period, by hand from the counter
// k = 0, -1, 0, 1, 2, 3, 4, 5, 4, 3, 2, 1 (odd positions -(k + 2), even 2 - k).
inline constexpr int kHandOffsets[12] = {-2, 3, -2, 1, -4, -1, -6, -3, -6, -1, -4, 1};

// The stored form of word-contracted codes: each minus its position's offset.
inline std::string HandScramble(const std::string& plain) {
  std::string stored = plain;
  for (size_t i = 0; i < stored.size(); ++i) {
    const int code = static_cast<unsigned char>(stored[i]) - kHandOffsets[i % 12];
    EXPECT_TRUE(code >= 0 && code <= 255) << "cannot store position " << i;
    stored[i] = static_cast<char>(code);
  }
  return stored;
}

// A packed body in stored order: lead-in, second half, details, first half,
// trailer. Use only codes that stand for themselves (no blank, full stop, word code).
inline std::string HandPackedBody(const std::string& first_half, const std::string& second_half,
                                  const std::string& details) {
  return HandScramble(std::string(2000, 'x') + second_half + details + first_half +
                      std::string(2000, 'y'));
}

}  // namespace vireo::test
