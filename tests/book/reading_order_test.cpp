#include "book/reading_order.h"

#include <gtest/gtest.h>

#include <random>

#include "book/book_test_support.h"
#include "book/cls_bin.h"
#include "book/scrambling.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo {
namespace {

// Word codes that expand to one to seven characters, and plain letters.
std::string RandomCodes(std::mt19937& random, size_t count) {
  static const std::string kCodes = "\xC9\xCA\xCD\xD7\xD6\xDE\xE7\xE9\xB3\xBC\xEC\xE0 .ab";
  std::uniform_int_distribution<size_t> pick(0, kCodes.size() - 1);
  std::string codes(count, 'a');
  for (char& c : codes) c = kCodes[pick(random)];
  return codes;
}

TEST(ExpandInReadingOrder, EqualsDecodeBinFollowedByBrnPostExtract) {
  std::mt19937 random(5);
  test::LogCapture log;
  int fused = 0;
  int refused = 0;
  // Codes, details between two section marks, codes: each side about as long
  // expanded as the lead-in or trailer, so the cuts fall on every kind of code.
  std::uniform_int_distribution<size_t> side(700, 1200);
  std::uniform_int_distribution<size_t> details(0, 20);
  for (int round = 0; round < 1000; ++round) {
    const std::string descrambled = RandomCodes(random, side(random)) + kSectionMark +
                                    RandomCodes(random, details(random)) + kSectionMark +
                                    RandomCodes(random, side(random));
    std::string stored = descrambled;
    Scramble(stored);
    ClearActions();
    clsBIN stages;
    stages.set_body(stored);
    stages.DecodeBin();
    stages.BrnPostExtract();
    const bool stages_failed = !test::LogCapture::Entries().empty();

    const std::optional<ExtractedBook> book = ExpandInReadingOrder(descrambled);
    if (!book) {
      ASSERT_TRUE(stages_failed) << round;
      ++refused;
      continue;
    }
    ++fused;
    ASSERT_FALSE(stages_failed) << round;
    ASSERT_EQ(book->text, stages.body()) << round;
    ASSERT_EQ(book->detail_block, stages.detail_block()) << round;
  }
  // Bodies too short once expanded, or with marks in the lead-in or trailer, are refused.
  EXPECT_GT(fused, 300);
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace vireo
