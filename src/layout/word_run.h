#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vireo {

// Runs read the text in blocks of this many bytes.
inline constexpr size_t kRunBlock = 64;

// What a run of ordinary words needs to know, with widths in the whole
// units of StyleTables::UnitsFor.
struct RunRules {
  const int64_t* units = nullptr;  // width of every byte
  int64_t space = 0;               // width of ' '
  int64_t limit = 0;               // a line wider than this many units breaks
  int32_t lines_per_page = 0;
};

// The line and page state that ordinary words change.
struct RunLine {
  int64_t width = 0;    // the line so far
  int32_t lines = 0;    // lines completed on the page
  bool broken = false;  // the run ended at least one line
};

// Lays out, from index begin of text, the words that need nothing from the
// word loop but their place on the line: words of at most 20 bytes ended by a
// blank that hold no code, or no code but line feeds. An ordinary word joins
// the line or, when it does not fit, starts the next one; a word with a line
// feed ends the line after it and the next line opens with the three-blank
// indent. Stops in front of the first other word, in front of the word that
// would complete the page, and at a word the text ends in. Returns where it
// stopped, the beginning of a word.
//
// Widths are found 64 bytes at a time: the running sum of the widths and a
// mask of the bytes that may end a word, so that a word costs a few
// operations instead of a branch per byte.
size_t LayOutOrdinaryWords(std::string_view text, size_t begin, const RunRules& rules,
                           RunLine& line);

// Bit i set when byte i of the block has a byte class: MarkBlock with vector
// compares where the processor has them, MarkBlockBytewise by the table.
uint64_t MarkBlock(const unsigned char* bytes);
uint64_t MarkBlockBytewise(const unsigned char* bytes);

}  // namespace vireo
