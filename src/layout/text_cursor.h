#pragma once

#include <cstdint>
#include <string>

namespace vireo {

// The searches the paginator makes in the book text beyond the word it
// reads, remembered so that the text is read a bounded number of times: the
// last blank of the text (a hyphen breaks a word only while a blank still
// follows) and the last blank or line feed at or before a position (a new
// page's start). Positions are 1-based; 0 means "none". The text is not owned
// and may be changed only through TextChanged.
class TextCursor {
 public:
  explicit TextCursor(const std::string& text);

  int64_t LastSpace() const { return last_space_; }

  // The later of the last ' ' and the last line feed at or before position
  // (1..text length); 0 when there is neither.
  int64_t LastDelimiterAtOrBefore(int64_t position);

  // The character at position was replaced by inserted_length characters of
  // paragraph marks (each " \n "), or they were appended when position lay
  // past the end of the text, which was old_size long.
  void TextChanged(int64_t position, int64_t inserted_length, int64_t old_size);

 private:
  static constexpr int64_t kUnknown = -1;
  int64_t LastSpaceBefore(int64_t position) const;

  const std::string& text_;
  int64_t last_space_ = 0;
  int64_t delimiter_query_ = kUnknown;
  int64_t delimiter_ = 0;
};

}  // namespace vireo
