#include "render/split_word.h"

#include <algorithm>

namespace vireo {
namespace {

// The larger of two positions, either of which may be npos.
size_t LaterOf(size_t a, size_t b) {
  if (a == std::string::npos) return b;
  if (b == std::string::npos) return a;
  return std::max(a, b);
}

}  // namespace

void SplitWord::Start(std::string word) {
  text_ = std::move(word);
  at_ = 0;
  Remember();
}

void SplitWord::Clear() {
  text_.clear();
  at_ = 0;
}

std::string SplitWord::Cut(size_t length) {
  std::string piece(Rest().substr(0, length));
  at_ += piece.size();
  if (at_ >= text_.size()) Start("0");
  return piece;
}

int SplitWord::NumberAfterEquals(int (*read)(std::string_view)) {
  if (equals_ == std::string::npos || equals_ < at_) {
    equals_ = text_.find('=', at_);
    number_.reset();
  }
  if (equals_ == std::string::npos) return read(Rest());
  if (!number_) number_ = read(std::string_view(text_).substr(equals_ + 1));
  return *number_;
}

void SplitWord::Remember() {
  last_bold_on_ = text_.rfind('\x80');
  last_italic_on_ = text_.rfind('\x82');
  last_tag_ = std::string::npos;
  for (const std::string_view tag : kPageNumberTags) {
    last_tag_ = LaterOf(last_tag_, text_.rfind(tag));
  }
  last_image_ = text_.rfind("[IMG=");
  equals_ = std::string::npos;
  number_.reset();
}

}  // namespace vireo
