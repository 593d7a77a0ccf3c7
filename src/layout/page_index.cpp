#include "layout/page_index.h"

#include "support/runtime_error.h"

namespace vireo {

size_t PageIndex::Checked(int32_t page) const {
  Require(page >= 1 && page <= UpperBound(), ErrorNumber::kSubscriptOutOfRange);
  return static_cast<size_t>(page);
}

void PageIndex::SetStyles(int32_t page, bool bold, bool italic, bool underline) {
  const size_t index = Checked(page);
  bold_[index] = bold ? 1 : 0;
  italic_[index] = italic ? 1 : 0;
  underline_[index] = underline ? 1 : 0;
}

void PageIndex::Recreate(int32_t upper_bound) {
  Require(upper_bound >= 1, ErrorNumber::kSubscriptOutOfRange);
  const size_t size = static_cast<size_t>(upper_bound) + 1;
  start_.assign(size, 0);
  bold_.assign(size, 0);
  italic_.assign(size, 0);
  underline_.assign(size, 0);
}

void PageIndex::Grow(int32_t upper_bound) {
  Require(upper_bound >= 1, ErrorNumber::kSubscriptOutOfRange);
  const size_t size = static_cast<size_t>(upper_bound) + 1;
  start_.resize(size, 0);
  bold_.resize(size, 0);
  italic_.resize(size, 0);
  underline_.resize(size, 0);
}

}  // namespace vireo
