#include "layout/text_cursor.h"

namespace vireo {

TextCursor::TextCursor(const std::string& text) : text_(text) {
  last_space_ = LastSpaceBefore(static_cast<int64_t>(text_.size()) + 1);
}

int64_t TextCursor::LastSpaceBefore(int64_t position) const {
  if (position <= 1) return 0;
  const size_t at = text_.rfind(' ', static_cast<size_t>(position - 2));
  return at == std::string::npos ? 0 : static_cast<int64_t>(at) + 1;
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

void TextCursor::TextChanged(int64_t position, int64_t inserted_length, int64_t old_size) {
  delimiter_query_ = kUnknown;
  // Inserted paragraph marks end with a blank, which is then the last one
  // unless a later blank moved along with the rest of the text.
  if (position > old_size) {
    if (inserted_length > 0) last_space_ = old_size + inserted_length;
  } else if (last_space_ > position) {
    last_space_ += inserted_length - 1;
  } else if (inserted_length > 0) {
    last_space_ = position + inserted_length - 1;
  } else if (last_space_ == position) {
    last_space_ = LastSpaceBefore(position);
  }
}

}  // namespace vireo
