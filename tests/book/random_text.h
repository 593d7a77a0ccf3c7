#pragma once

// Random texts for property tests: plain random bytes, and texts built from
// the pieces the book code treats specially, so that rare combinations
// (quotes before line ends, blank runs, scene breaks, word-table fragments)
// come up often.

#include <random>
#include <string>
#include <vector>

namespace vireo::test {

inline std::string RandomBytes(std::mt19937& random, size_t length) {
  std::uniform_int_distribution<int> byte(0, 255);
  std::string text(length, '\0');
  for (char& c : text) c = static_cast<char>(byte(random));
  return text;
}

inline std::string RandomFromPieces(std::mt19937& random, const std::vector<std::string>& pieces,
                                    size_t piece_count) {
  std::uniform_int_distribution<size_t> pick(0, pieces.size() - 1);
  std::string text;
  for (size_t i = 0; i < piece_count; ++i) text += pieces[pick(random)];
  return text;
}

// Pieces of text that exercise every step of the paragraph reformatting.
inline const std::vector<std::string>& ReformattingPieces() {
  static const std::vector<std::string> pieces = {
      "a",   "b",   " ",    "  ",     "   ",    "      ", "\r",   "\n",   "\r\n", "\t",
      "\"",  "'",   "`",    "\x91",   "\x92",   "\x93",   "\x94", "\x81", "\x82", "\x83",
      "\x84", "\x88", "*",  "* * *",  "\x84* * *", "-",  "--",   ".",    "...",  "!",
      "?",   "_",   "\xC8", " \n ",   "&",      "x"};
  return pieces;
}

}  // namespace vireo::test
