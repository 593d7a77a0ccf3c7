#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vireo {

// Words of more than this many characters are split when wider than a line.
inline constexpr size_t kLongWordLength = 20;

// How a long word meets the line.
struct LongWordFit {
  bool wider = false;      // WordWidth(word) > line width
  double width = 0;        // !wider: WordWidth(word)
  size_t piece = 0;        // wider: length of the first piece
  double piece_width = 0;  // wider: WordWidth of the first piece
};

// The first piece of a word wider than the line: shrink from the full length
// shrink_step characters at a time while the prefix is wider than the line
// (never below one character), then grow one at a time while it is narrower.
// Unless a prefix fits exactly, the piece thus ends one character past the
// longest fitting prefix and overhangs the line. table is indexed by byte.
// With monotone widths (none negative) one forward pass over the piece
// decides, whatever the step; otherwise every prefix width is computed into
// scratch.
LongWordFit FitLongWord(const double* table, std::string_view word, double line_width,
                        bool monotone, std::vector<double>& scratch, size_t shrink_step = 1);

}  // namespace vireo
