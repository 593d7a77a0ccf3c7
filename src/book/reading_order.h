#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vireo {

// The stored book's frame, counted in expanded characters: a lead-in before
// and a trailer after the text, both of no meaning to the reader.
inline constexpr size_t kLeadInLength = 2000;
inline constexpr size_t kTrailerLength = 2000;
inline constexpr char kSectionMark = '\xA9';  // 169, around the detail block

// What BrnPostExtract makes of an expanded body: the book text in reading
// order (what followed the last section mark, then what preceded the first)
// and the detail block (from the first section mark up to the last).
struct ExtractedBook {
  std::string text;
  std::string detail_block;
};

// The word expansion of DecodeBin and the extraction of BrnPostExtract in
// one pass over a descrambled body: each part is expanded straight to its
// place in reading order, so neither the expanded body in stored order nor
// the text without lead-in and trailer is ever built. The result equals
// ExpandWords followed by BrnPostExtract's cuts. Returns nullopt when the
// body is not of the usual shape (shorter than lead-in and trailer once
// expanded, no section mark after the lead-in, or the last one inside the
// trailer): the caller then runs the two stages in turn, which also report
// the error.
std::optional<ExtractedBook> ExpandInReadingOrder(std::string_view descrambled);

}  // namespace vireo
