// The block marks that drive runs of ordinary words: the vector compares
// must find exactly the bytes the class table marks.

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "layout/word_run.h"

namespace vireo {
namespace {

TEST(WordRun, BlockMarksAgreeWithTheClassTableForEveryByte) {
  std::array<unsigned char, kRunBlock> block{};
  for (int base = 0; base < 256; base += kRunBlock) {
    for (size_t i = 0; i < kRunBlock; ++i) block[i] = static_cast<unsigned char>(base + i);
    EXPECT_EQ(MarkBlock(block.data()), MarkBlockBytewise(block.data())) << "bytes from " << base;
  }
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    for (auto& byte : block) byte = static_cast<unsigned char>(random());
    ASSERT_EQ(MarkBlock(block.data()), MarkBlockBytewise(block.data()));
  }
}

TEST(WordRun, BlockMarksAreBlanksLineFeedsAndCodes) {
  std::array<unsigned char, kRunBlock> block;
  block.fill('a');
  block[0] = ' ';
  block[5] = '\n';
  block[9] = 132;  // printable: no mark
  block[10] = 134;
  block[63] = '[';
  EXPECT_EQ(MarkBlock(block.data()), (1ULL << 0) | (1ULL << 5) | (1ULL << 10) | (1ULL << 63));
}

}  // namespace
}  // namespace vireo
