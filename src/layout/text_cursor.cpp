#include "layout/text_cursor.h"

#include <cstring>

namespace vireo {

int64_t TextCursor::Next(char wanted, int64_t position, int64_t& cached) {
  // A remembered answer holds while the scan position has not passed it;
  // "none" holds for every later position.
  if (cached != kUnknown && (cached == 0 || cached >= position)) return cached;
  const int64_t size = static_cast<int64_t>(text_.size());
  cached = 0;
  if (position >= 1 && position <= size) {
    const void* found =
        std::memchr(text_.data() + position - 1, wanted, static_cast<size_t>(size - position + 1));
    if (found != nullptr) cached = static_cast<const char*>(found) - text_.data() + 1;
  }
  return cached;
}

int64_t TextCursor::LastDelimiterAtOrBefore(int64_t position) {
  if (position == delimiter_query_) return delimiter_;
  delimiter_query_ = position;
  delimiter_ = 0;
  for (int64_t p = position; p >= 1; --p) {
    const char c = text_[static_cast<size_t>(p - 1)];
    if (c == ' ' || c == '\n') {
      delimiter_ = p;
      break;
    }
  }
  return delimiter_;
}

void TextCursor::TextChanged(int64_t position, int64_t inserted_length) {
  const int64_t shift = inserted_length - 1;
  // New blanks may now lie ahead; the next hyphen only moves.
  space_ = kUnknown;
  if (hyphen_ > position) {
    hyphen_ += shift;
  } else if (hyphen_ != 0) {
    hyphen_ = kUnknown;
  }
  delimiter_query_ = kUnknown;
}

}  // namespace vireo
