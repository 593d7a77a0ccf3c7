#include "book/word_table.h"

#include <gtest/gtest.h>

#include <random>

#include "book/book_test_support.h"
#include "book/random_text.h"
#include "book/scrambling.h"

namespace vireo {
namespace {

// The 48 expansions as the unpacker defines them: each row's code replaced
// over the whole text, from row 48 down to row 1.
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

TEST(WordTable, ComposedExpansionsGiveTheFinalMeaningOfEachCode) {
  EXPECT_EQ(ExpandWords(" "), "f");
  EXPECT_EQ(ExpandWords("\xE7"), " ");
  EXPECT_EQ(ExpandWords("."), "r");
  EXPECT_EQ(ExpandWords("\xE9"), ".");
  EXPECT_EQ(ExpandWords("\xB3\xB4\xBC"), "f0f1f9");
  EXPECT_EQ(ExpandWords("\xC9\xD7\xEC"), "tionconsoleTh");
  EXPECT_EQ(ExpandWords("f r a\xA9\xC8"), "ffrfa\xA9\xC8");
}

TEST(WordTable, OnePassExpansionEqualsTheRowByRowReplacements) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    const std::string text = test::RandomBytes(random, 300);
    ASSERT_EQ(ExpandWords(text), ExpandRowByRow(text));
  }
}

// Texts rich in the table's words and their overlaps ("tr" "re" "er",
// "f0", "the" "Th" ...), plus random bytes that no expansion leaves out.
std::string RandomWordyText(std::mt19937& random) {
  static const std::vector<std::string> pieces = {
      "tion", "the",   "aid", "and", "shout",   "tr", "ea",   "st",   "er",   "re",
      "you",  "Clunk", "Hal", "can", "console", "to", "that", "not",  "his",  "what",
      "oo",   "l",     "a",   "\t",  "d",       "e",  "ch",   "s",    "p",    " ",
      "f",    ",",     ".",   "r",   "\"",      "c",  "Th",   "0",    "9",    "f0",
      "f 0",  "x",     "T",   "h",   "i",       "o",  "n",    "\xA9", "\xC8", "\xFF"};
  return test::RandomFromPieces(random, pieces, 80);
}

bool ExpansionProduces(uint8_t byte) {
  for (const std::string& expansion : Expansions()) {
    if (expansion.find(static_cast<char>(byte)) != std::string::npos) return true;
  }
  return false;
}

TEST(WordTable, ContractionIsUndoneByExpansion) {
  std::mt19937 random(11);
  std::string producible;
  for (int byte = 0; byte < 256; ++byte) {
    if (ExpansionProduces(static_cast<uint8_t>(byte)))
      producible.push_back(static_cast<char>(byte));
  }
  EXPECT_EQ(producible.size(), 256u - 10u - 36u);  // all but 179-188 and 201-236
  std::uniform_int_distribution<size_t> pick(0, producible.size() - 1);
  for (int round = 0; round < 300; ++round) {
    std::string text = RandomWordyText(random);
    for (int i = 0; i < 40; ++i) text.push_back(producible[pick(random)]);
    ASSERT_EQ(ExpandWords(ContractWords(text)), text) << round;
  }
}

TEST(WordTable, ContractionRunsTheRowsInOrder) {
  // "f0" becomes a blank and "0" at row 32, then 179 at row 39; blanks are
  // 231 before that, so " 0" stays two codes.
  EXPECT_EQ(ContractWords("f0 0"),
            "\xB3\xE7"
            "0");
  EXPECT_EQ(ContractWords("tion"), "\xC9");
  EXPECT_EQ(ContractWords("r."), ".\xE9");
  // "er" (row 9) is taken before "re" (row 10), then "e" (row 26), "Th" (38).
  EXPECT_EQ(ContractWords("There"), "\xEC\xD1\xE2");
}

TEST(Scrambling, OffsetsFollowTheCounter) {
  for (size_t i = 0; i < 30; ++i) EXPECT_EQ(DescrambleOffset(i), test::kHandOffsets[i % 12]) << i;
}

TEST(Scrambling, ScrambleIsUndoneByDescramble) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> safe(3, 249);
  std::string text(1000, '\0');
  for (char& c : text) c = static_cast<char>(safe(random));
  std::string stored = text;
  Scramble(stored);
  EXPECT_EQ(stored, test::HandScramble(text));
  Descramble(stored);
  EXPECT_EQ(stored, text);
}

}  // namespace
}  // namespace vireo
