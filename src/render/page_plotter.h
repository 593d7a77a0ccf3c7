#pragma once

#include <string>
#include <vector>

#include "layout/font_metrics.h"
#include "render/book_display.h"
#include "render/book_view.h"
#include "render/page_settings.h"
#include "render/print_page.h"

namespace vireo {

class PageBuffers;
class clsNewImages;
struct Picture;
class Surface;
struct BookPages;
struct ReaderPreferences;

// Draws into the page buffers: paper, page text, page numbers and the title
// page, each box shown once drawn. Reads the open book through `book`, the
// live preferences and the current font metrics, which it measures again
// when the font has changed; all must outlive it. It draws the pictures the
// composer places into the page picture itself, so that the cache, the sweep
// and printing carry them like the text. Errors are logged under module
// "frmMain" with each procedure's own name.
class PagePlotter : public BookDisplay, public PrintPageObserver {
 public:
  PagePlotter(PageBuffers& buffers, const BookPages& book, const ReaderPreferences& prefs,
              clsPrintPage& composer, clsFontMetrics& metrics);

  // Recomputes the text area from Page(0) at the reader's font size.
  void SetPageBorders();
  const PageTextArea& text_area() const { return area_; }

  // The font tables are measured again before they are next used, so that
  // setting the font name and then its size measures once.
  void MarkFontTablesStale() { font_tables_stale_ = true; }
  void EnsureFontTables();

  // The search term whose matches are highlighted ("" for none).
  void SetSearchTerm(std::string term) { search_term_ = std::move(term); }
  const std::string& search_term() const { return search_term_; }

  // BookDisplay. PlotOnPage draws page `page` for side 0 (left-hand) or 1
  // (right-hand). DrawTitlePage: on Page(0) in single-page mode; on Page(1)
  // with the hints on Page(0) in double-page mode; places the language list.
  void PlotOnPage(PageSide side, int box, int page) override;
  void ClearPage(int box) override;
  void DrawTitlePage() override;
  // The cover goes over Page(0) while it shows page 1.
  void ShowCover() override;
  void HideCover() override;
  bool BookLoaded() const override;

  // The lines of page `page` as it is laid out on screen (a line that ends
  // a paragraph ends with a line feed; style codes kept); empty for a page
  // the book does not have.
  std::vector<std::string> PageLines(int page);
  // Draws page `page` onto the printer surface with the lines it has on
  // screen and its number at the foot; the printer's own widths place the
  // glyphs and nothing is highlighted.
  void PrintOnPage(int page, Surface& printer);

  // The pictures of the open book (not owned; nullptr for none) and its
  // cover (not owned; nullptr for none; shown at once where it belongs).
  void SetPictures(clsNewImages* images) { images_ = images; }
  void SetCover(const Picture* cover);

  // PrintPageObserver: picture image_number goes on the page being composed,
  // at the store's ImageLeft from left, on line line_index (its top is kept
  // as the store's ImageTop).
  void AddImage(int page_side, int image_number, double left, int line_index) override;

  // Every box gets the paper colour as back colour, the ink colour as fore
  // colour, then its texture.
  void SetPageColours();
  // The box's background: texture "TextureNum", or none for -1.
  void SetTexture(int box);

 private:
  void ComposePage(PageSide side, int box, int page);
  PageSettings SettingsFor(PageSide side, int page, PageTarget target) const;
  void DrawPageNumber(Surface& surface, int page);

  PageBuffers& buffers_;
  const BookPages& book_;
  const ReaderPreferences& prefs_;
  clsPrintPage& composer_;
  clsFontMetrics& metrics_;
  PageTextArea area_;
  std::string search_term_;
  bool font_tables_stale_ = true;
  StylesUsed measured_styles_;  // whose tables are measured for the font
  clsNewImages* images_ = nullptr;
  const Picture* cover_ = nullptr;
  bool cover_shown_ = false;
  Surface* composing_surface_ = nullptr;  // while a page is composed for drawing
  bool printing_ = false;                 // that surface is the printer
};

}  // namespace vireo
