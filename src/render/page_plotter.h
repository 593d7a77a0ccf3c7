#pragma once

#include "render/book_view.h"

namespace vireo {

class PageBoxes;
class clsPrintPage;
class clsFontMetrics;
struct ReaderPreferences;

// Draws into the page boxes: paper, page text, page numbers and the title
// page. Holds references to the window's boxes, the live preferences, the
// composer and the current font metrics; all must outlive it. Errors are
// logged under module "frmMain" with each procedure's own name.
class PagePlotter {
 public:
  PagePlotter(PageBoxes& boxes, const ReaderPreferences& prefs, clsPrintPage& composer,
              const clsFontMetrics& metrics);

  // Recomputes the text area from Page(0) at the reader's font size.
  void SetPageBorders();
  const PageTextArea& text_area() const { return area_; }

  // Draws page `page` into Page(box); side 0 is the left-hand page context,
  // 1 the right-hand one. With no book loaded the title page is drawn
  // instead; a page outside 1..page count draws nothing and the box keeps
  // what it shows.
  void PlotOnPage(int side, int box, int page);
  // Repaints one box with its paper only.
  void ClearPage(int box);
  // Every box gets the paper colour as back colour, the ink colour as fore
  // colour, then its texture.
  void SetPageColours();
  // The box's background: texture "TextureNum", or none for -1.
  void SetTexture(int box);
  // The welcome page: on Page(0) in single-page mode; on Page(1) with the
  // hints on Page(0) in double-page mode. Places the language list.
  void DrawTitlePage();

 private:
  void DrawPageNumber(int box, int page);

  PageBoxes& boxes_;
  const ReaderPreferences& prefs_;
  clsPrintPage& composer_;
  const clsFontMetrics& metrics_;
  PageTextArea area_;
};

}  // namespace vireo
