#include "book/byte_scan.h"

#include <gtest/gtest.h>

#include <random>

#include "sample_text.h"

namespace vireo {
namespace {

// Next against a plain walk, from every start, over texts in which members
// (low, high and in between) stand at every place of a sixteen-byte block.
TEST(ByteSet, NextFindsTheFirstMemberFromAnyStart) {
  constexpr auto kSet = MakeByteSet('\r', '"', 0, 200);
  std::mt19937 random(3);
  std::uniform_int_distribution<int> sparse(0, 40);
  for (int round = 0; round < 200; ++round) {
    std::string text = samples::RandomBytes(random, 70);
    for (char& c : text) {
      if (kSet.Contains(c) && sparse(random) != 0) c = 'a';
    }
    for (size_t start = 0; start <= text.size(); ++start) {
      size_t expected = start;
      while (expected < text.size() && !kSet.Contains(text[expected])) ++expected;
      ASSERT_EQ(kSet.Next(text, start), expected) << round << " " << start;
    }
  }
}

}  // namespace
}  // namespace vireo
