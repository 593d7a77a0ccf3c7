#include "book/reading_order.h"

#include <cstring>

#include "book/word_table.h"
#include "support/large_buffer.h"

namespace vireo {
namespace {

constexpr size_t kNotFound = std::string_view::npos;

size_t ExpansionLength(char code) { return Expansions()[static_cast<uint8_t>(code)].size(); }

// A point between two codes of a stored body: the index of the code after
// it and the expanded offset at which that code's expansion starts.
struct Cut {
  size_t index;
  size_t offset;
};

// The first code whose expansion starts at or after expanded offset; the
// code before it may straddle offset. Walks the lead-in only.
Cut FirstCodeFrom(std::string_view body, size_t offset) {
  Cut cut{0, 0};
  while (cut.index < body.size() && cut.offset < offset)
    cut.offset += ExpansionLength(body[cut.index++]);
  return cut;
}

// The first code after index from whose expansion starts at or after offset,
// walking back from the end of the body (whose expansion ends at total).
// Walks the trailer only.
Cut FirstCodeFromBackwards(std::string_view body, size_t from, size_t total, size_t offset) {
  Cut cut{body.size(), total};
  while (cut.index > from && cut.offset - ExpansionLength(body[cut.index - 1]) >= offset) {
    cut.offset -= ExpansionLength(body[--cut.index]);
  }
  return cut;
}

size_t LastIndexOf(std::string_view text, char c) {
#if defined(__GLIBC__)
  const void* hit = memrchr(text.data(), c, text.size());
  return hit == nullptr ? kNotFound
                        : static_cast<size_t>(static_cast<const char*>(hit) - text.data());
#else
  return text.rfind(c);
#endif
}

}  // namespace

std::optional<ExtractedBook> ExpandInReadingOrder(std::string_view body) {
  // The lead-in and the trailer, as cuts between codes. A section mark is
  // its own expansion, and no word holds one, so the marks can be found
  // among the codes between the cuts.
  const Cut lead_in_end = FirstCodeFrom(body, kLeadInLength);
  const size_t first = body.find(kSectionMark, lead_in_end.index);
  if (first == kNotFound) return std::nullopt;
  const size_t first_offset = ExpandedLength(body.substr(0, first));
  const size_t total = first_offset + ExpandedLength(body.substr(first));
  if (total < kLeadInLength + kTrailerLength) return std::nullopt;
  const size_t trailer_start = total - kTrailerLength;
  if (first_offset >= trailer_start) return std::nullopt;
  const Cut trailer = FirstCodeFromBackwards(body, first + 1, total, trailer_start);
  const size_t last = first + LastIndexOf(body.substr(first, trailer.index - first), kSectionMark);
  const size_t last_offset = first_offset + ExpandedLength(body.substr(first, last - first));

  ExtractedBook book;
  book.detail_block = ExpandWords(body.substr(first, last - first));
  // Second half: from after the last mark up to the trailer. The code that
  // straddles the trailer is expanded whole; its end is written over.
  const size_t second_half = trailer_start - (last_offset + 1);
  const size_t first_half = first_offset - kLeadInLength;
  ReserveLarge(book.text, second_half + first_half + 2 * kExpansionSlack);
  book.text.assign(second_half + first_half + 2 * kExpansionSlack, '\0');
  char* out = book.text.data();
  ExpandInto(body.substr(last + 1, trailer.index - (last + 1)), out);
  out += second_half;
  // First half: the end of the code that straddles the lead-in, then the
  // codes up to the first mark.
  if (lead_in_end.offset > kLeadInLength) {
    const std::string& straddling = Expansions()[static_cast<uint8_t>(body[lead_in_end.index - 1])];
    const size_t kept = lead_in_end.offset - kLeadInLength;
    std::memcpy(out, straddling.data() + straddling.size() - kept, kept);
    out += kept;
  }
  ExpandInto(body.substr(lead_in_end.index, first - lead_in_end.index), out);
  book.text.resize(second_half + first_half);
  return book;
}

}  // namespace vireo
