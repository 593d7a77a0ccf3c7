#pragma once

#include <cstdint>
#include <string>

#include "support/checked_int16.h"

namespace vireo {

// Where a composed page goes: a page box on screen, or the printer. Search
// matches are highlighted on screen only.
enum class PageTarget { kScreen, kPrinter };

// Everything the page composer needs to lay out and draw one page, filled by
// the caller for each page. Lengths are twips.
struct PageSettings {
  Int16 caller_tag = 0;   // free for the caller; the composer never reads it
  Int16 page_side = 0;    // page box the page is drawn on; passed on with AddImage
  std::string page_text;  // the book text of this page (Windows-1252)
  bool justify = true;    // justify lines that are at least 70 % full
  bool indented = true;   // keep the three-space first-line indent
  bool bold = false;      // styles open at the top of the page
  bool italic = false;
  bool underline = false;
  double line_width = 0;  // usable width of a line
  double left = 0;        // x at which every line starts
  double top = 0;         // y of the first line
  Int16 lines_per_page = 0;
  // Added to y after each line on top of the surface's own line advance (one
  // text height), so a page box passes the line gap here.
  double line_step = 0;
  std::string search_term;               // text to highlight; "" for none
  uint32_t highlight_colour = 0x00B000;  // 0x00BBGGRR
  PageTarget target = PageTarget::kScreen;
};

}  // namespace vireo
