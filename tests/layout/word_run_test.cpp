// The block marks that drive runs of ordinary words: the vector compares
// must find exactly the bytes the class table marks. (Which bytes those are
// is checked by the paginator's comparison with the literal rules.)

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

}  // namespace
}  // namespace vireo
