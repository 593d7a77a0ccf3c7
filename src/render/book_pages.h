#pragma once

#include <algorithm>
#include <cstdint>
#include <string>

#include "layout/font_metrics.h"
#include "layout/page_index.h"

namespace vireo {

// The text of one page and the styles open at its top.
struct PageContent {
  std::string text;  // the book text from the page's start to the next page's start
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// The open book as the page drawing reads it: the book text and its page
// index. The book session owns and changes it; everything that draws pages
// holds it read-only.
struct BookPages {
  std::string text;  // Windows-1252 bytes, positions counted from 1
  StylesUsed styles;  // of text, as SetText finds them (all until then)
  PageIndex index;
  bool loaded = false;  // false: no book, the title page is shown

  // A new book's text, with the styles it can switch on.
  void SetText(std::string book_text);

  // Page numbers on show are 16-bit, and a spread and its cache reach two
  // pages past the current one: pages beyond this one cannot be shown.
  static constexpr int32_t kLastShowablePage = INT16_MAX - 3;

  // The pages that can be shown while a book is loaded (the page count n, at
  // most kLastShowablePage), else 0.
  int PageCount() const { return loaded ? std::min(index.count, kLastShowablePage) : 0; }
  // Page `page`, 1..PageCount(): its text and the styles open at its top.
  PageContent Page(int page) const;
};

}  // namespace vireo
