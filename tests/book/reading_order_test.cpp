#include "book/reading_order.h"

#include <gtest/gtest.h>

#include <random>

#include "book/book_test_support.h"
#include "book/cls_bin.h"
#include "book/scrambling.h"

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

// A descrambled body: codes, the detail block between two section marks,
// codes; the parts about as long once expanded as the lead-in and the
// trailer, so that the cuts fall on every kind of code and sometimes miss
// the marks.
std::string RandomDescrambledBody(std::mt19937& random) {
  std::uniform_int_distribution<size_t> side(700, 1200);
  std::uniform_int_distribution<size_t> details(0, 20);
  return RandomCodes(random, side(random)) + kSectionMark + RandomCodes(random, details(random)) +
         kSectionMark + RandomCodes(random, side(random));
}

TEST(ExpandInReadingOrder, EqualsDecodeBinFollowedByBrnPostExtract) {
  std::mt19937 random(5);
  test::LogCapture log;
  int fused = 0;
  int refused = 0;
  for (int round = 0; round < 1000; ++round) {
    const std::string descrambled = RandomDescrambledBody(random);
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
      // The stages then run in turn, and fail.
      ASSERT_TRUE(stages_failed) << round;
      ++refused;
      continue;
    }
    ++fused;
    ASSERT_FALSE(stages_failed) << round;
    ASSERT_EQ(book->text, stages.body()) << round;
    ASSERT_EQ(book->detail_block, stages.detail_block()) << round;
  }
  // Both shapes come up often.
  EXPECT_GT(fused, 300);
  EXPECT_GT(refused, 100);
}

TEST(ExpandInReadingOrder, RefusesBodiesOfAnUnusualShape) {
  const auto expanded = [](const std::string& text) { return ExpandInReadingOrder(text); };
  // Too short once expanded: 3997 plain characters and two marks.
  EXPECT_FALSE(expanded(std::string(2000, 'x') + "\xA9\xA9" + std::string(1997, 'y')));
  // The only marks are in the lead-in.
  EXPECT_FALSE(expanded("\xA9\xA9" + std::string(6000, 'x')));
  // The only marks are in the trailer.
  EXPECT_FALSE(expanded(std::string(2500, 'x') + "\xA9\xA9" + std::string(1000, 'x')));
  // A code straddling the lead-in ("console" from 1998) keeps its end.
  const std::optional<ExtractedBook> book = expanded(std::string(1998, 'x') + "\xD7" +
                                                     "ab\xA9"
                                                     "details\xA9"
                                                     "cd" +
                                                     std::string(2000, 'y'));
  ASSERT_TRUE(book);
  EXPECT_EQ(book->text, "cdnsoleab");
  EXPECT_EQ(book->detail_block,
            "\xA9"
            "details");
}

}  // namespace
}  // namespace vireo
