#pragma once

#include <cstdint>
#include <string>

namespace vireo {

// The searches the paginator makes in the book text, remembered so that the
// whole text is read a bounded number of times: the next blank and the next
// hyphen at or after the scan position, and the last blank or line feed at
// or before a position. Positions are 1-based; 0 means "none". The text is
// not owned and may be changed only through TextChanged.
class TextCursor {
 public:
  explicit TextCursor(const std::string& text) : text_(text) {}

  // Position of the next ' ' (or '-') at or after position, which must never
  // decrease from one call to the next.
  int64_t NextSpace(int64_t position) { return Next(' ', position, space_); }
  int64_t NextHyphen(int64_t position) { return Next('-', position, hyphen_); }

  // The later of the last ' ' and the last line feed at or before position
  // (1..text length); 0 when there is neither.
  int64_t LastDelimiterAtOrBefore(int64_t position);

  // The character at position was replaced by inserted_length characters of
  // paragraph marks (blanks and line feeds, no hyphen).
  void TextChanged(int64_t position, int64_t inserted_length);

 private:
  static constexpr int64_t kUnknown = -1;
  int64_t Next(char wanted, int64_t position, int64_t& cached);

  const std::string& text_;
  int64_t space_ = kUnknown;
  int64_t hyphen_ = kUnknown;
  int64_t delimiter_query_ = kUnknown;
  int64_t delimiter_ = 0;
};

}  // namespace vireo
