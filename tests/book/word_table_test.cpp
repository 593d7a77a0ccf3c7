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

// Each row's word replaced over the whole text, from row 1 up to row 48.
std::string ContractRowByRow(std::string text) {
  const WordTable words = SetupWords();
  for (int row = 1; row <= kWordRows; ++row) {
    std::string next;
    const std::string& word = words[row].word;
    for (size_t at = 0; at < text.size();) {
      if (text.compare(at, word.size(), word) == 0) {
        next.push_back(static_cast<char>(words[row].code));
        at += word.size();
      } else {
        next.push_back(text[at++]);
      }
    }
    text = std::move(next);
  }
  return text;
}

// The codes with chained meanings (blank, full stop, f0, f9) are clsBIN's test.
TEST(WordTable, OnePassExpansionGivesTheFinalMeaningOfEachCodeRowByRow) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    const std::string text = samples::RandomBytes(random, 300);
    ASSERT_EQ(ExpandWords(text), ExpandRowByRow(text));
  }
}

// Words that overlap each other and themselves, digits after "f", and long
// stretches without a byte that ends a word, across the pieces the
// one-pass contraction works in.
TEST(WordTable, OnePassContractionGivesTheRowByRowResult) {
  const std::vector<std::string> pieces = {
      "tion", "the", "aid", "and", "shout", "tr", "ea", "st", "er", "re", "you", "Clunk", "Hal",
      "can", "console", "to", "that", "not", "his", "what", "oo", "o", "ch", "Th", "f", "f0",
      "9", " ", ".", "r", "e", "a", "t", "h", "s", "\xC9", "\xB3", "thathat", "ooo"};
  std::mt19937 random(11);
  for (int round = 0; round < 300; ++round) {
    std::string text = samples::RandomFromPieces(random, pieces, 40);
    if (round % 3 == 0) text += samples::RandomBytes(random, 40);
    ASSERT_EQ(ContractWords(text), ContractRowByRow(text)) << text;
  }
  const std::string big = samples::RandomFromPieces(random, pieces, 200000);
  const std::string_view halves[] = {std::string_view(big).substr(0, 70001),
                                     std::string_view(big).substr(70001)};
  std::string joined = "kept";
  AppendContracted(joined, halves);
  EXPECT_EQ(joined, "kept" + ContractRowByRow(big));
  const std::string unbroken(300000, 'o');
  EXPECT_EQ(ContractWords(unbroken + "f1"), ContractRowByRow(unbroken + "f1"));
}

}  // namespace
}  // namespace vireo
