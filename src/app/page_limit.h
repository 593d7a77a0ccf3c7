#pragma once

#include <string>

#include "render/book_pages.h"

namespace vireo {

// What the reader is told when a pagination gave the book more pages than
// can be shown (BookPages::kLastShowablePage): the page count, the pages
// shown and the share of the text they hold, and that a smaller font or a
// bigger window shows more. "" when every page can be shown.
std::string PageLimitMessage(const BookPages& book);

}  // namespace vireo
