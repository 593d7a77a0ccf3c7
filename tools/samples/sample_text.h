#pragma once

// Generated texts for tests and benchmarks: random bytes, and texts of the pieces the
// book code treats specially, so that rare combinations come up often.

#include <cctype>
#include <random>
#include <string>
#include <vector>

namespace vireo::samples {

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
      "a",    "b",    " ",    "  ",   "   ",  "      ", "\r",        "\n",   "\r\n",
      "\t",   "\"",   "'",    "`",    "\x91", "\x92",   "\x93",      "\x94", "\x81",
      "\x82", "\x83", "\x84", "\x88", "*",    "* * *",  "\x84* * *", "-",    "--",
      ".",    "...",  "!",    "?",    "_",    "\xC8",   " \n ",      "&",    "x"};
  return pieces;
}

// Prose-like text: sentences of common words and dialogue, lines wrapped at
// about 72, empty lines between paragraphs, now and then a scene break, dashes,
// an ellipsis or an underscored word.
inline std::string ProseLikeText(std::mt19937& random, size_t length) {
  static const std::vector<std::string> words = {
      "the",  "and",   "of",  "to",     "that", "in",    "he",   "shall", "unto",   "for",
      "i",    "his",   "a",   "lord",   "they", "be",    "is",   "him",   "not",    "them",
      "it",   "with",  "all", "thou",   "thy",  "was",   "god",  "which", "my",     "me",
      "said", "but",   "ye",  "their",  "have", "will",  "thee", "from",  "as",     "are",
      "when", "this",  "out", "were",   "upon", "man",   "you",  "by",    "Israel", "king",
      "son",  "there", "up",  "people", "came", "house", "into", "one",   "come",   "before"};
  std::uniform_int_distribution<size_t> word(0, words.size() - 1);
  std::uniform_int_distribution<int> chance(0, 99);
  std::string text;
  size_t line = 0;
  auto put = [&](const std::string& piece) {
    if (line + piece.size() > 72) {
      text += "\n";
      line = 0;
    } else if (line > 0) {
      text += " ";
      ++line;
    }
    text += piece;
    line += piece.size();
  };
  while (text.size() < length) {
    const bool speech = chance(random) < 20;
    std::string sentence = speech ? "\"" : "";
    const int count = 4 + chance(random) % 12;
    for (int i = 0; i < count; ++i) {
      std::string w = words[word(random)];
      if (i == 0) w[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(w[0])));
      if (chance(random) < 3) w = "_" + w + "_";
      if (i + 1 < count && chance(random) < 8) w += chance(random) < 50 ? "," : " --";
      put(sentence + w);
      sentence.clear();
    }
    const int end = chance(random);
    text += end < 70 ? "." : end < 80 ? "?" : end < 90 ? "!" : "...";
    if (speech) text += "\"";
    if (chance(random) < 20) {
      text += chance(random) < 5 ? "\n\n\x84* * *\n\n" : "\n\n";
      line = 0;
    }
  }
  return text;
}

}  // namespace vireo::samples
