#include "book/word_table.h"

#include <gtest/gtest.h>

#include <random>

#include "sample_text.h"

namespace vireo {
namespace {

// Each row's code replaced over the whole text, from row 48 down to row 1.
std::string ExpandRowByRow(std::string text) {
  const WordTable words = SetupWords();
  for (int row = kWordRows; row >= 1; --row) {
    std::string next;
    for (char c : text) {
      if (static_cast<uint8_t>(c) == words[row].code) {
        next += words[row].word;
      } else {
        next.push_back(c);
      }
    }
    text = std::move(next);
  }
  return text;
}

// The codes with chained meanings (blank, full stop, f0, f9) are clsBIN's test.
TEST(WordTable, OnePassExpansionGivesTheFinalMeaningOfEachCodeRowByRow) {
  EXPECT_EQ(ExpandWords("\xC9\xD7\xEC"), "tionconsoleTh");
  EXPECT_EQ(ExpandWords("f r a\xA9\xC8"), "ffrfa\xA9\xC8");
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    const std::string text = samples::RandomBytes(random, 300);
    ASSERT_EQ(ExpandWords(text), ExpandRowByRow(text));
  }
}

// That expansion undoes contraction is the book round trip's test.
TEST(WordTable, ContractionRunsTheRowsInOrder) {
  // "f0" becomes " 0" at row 32, then 179 at row 39; the blank already was 231.
  EXPECT_EQ(ContractWords("f0 0"),
            "\xB3\xE7"
            "0");
  EXPECT_EQ(ContractWords("tion"), "\xC9");
  EXPECT_EQ(ContractWords("r."), ".\xE9");
  // "er" (row 9) is taken before "re" (row 10), then "e" (row 26), "Th" (38).
  EXPECT_EQ(ContractWords("There"), "\xEC\xD1\xE2");
}

}  // namespace
}  // namespace vireo
