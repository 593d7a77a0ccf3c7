#pragma once

#include <cstdint>
#include <string>

#include "app/reader_context.h"
#include "nav/page_navigation.h"
#include "render/page_pictures.h"
#include "render/page_plotter.h"
#include "render/page_turner.h"
#include "render/print_page.h"

namespace vireo {

// The pages on show and the machinery that draws and turns them: the
// composer, the page plotter, the page cache, the turns and page
// navigation, laid out for the window's size and page mode. Errors are
// logged under their procedures' logged names of module "frmMain".
class BookSpread {
 public:
  explicit BookSpread(ReaderContext& context);

  // Lays the book view out for the window's inner size and the page mode
  // and recomputes the page borders (the boxes are cleared; the caller
  // re-plots).
  void LayOutBook();
  // Whether the window's inner size differs from the one last laid out.
  bool SizeChangedSinceLayout() const;

  // Shows page (clamped to the book; in double-page mode the spread that
  // begins on the odd page at or before it), with the cache refilled.
  void ShowPage(int page);
  // The pages on show are cleared and drawn again (the title page without a book).
  void RedrawPages();
  // The spread that holds a character position drawn as soon as it is
  // paginated, with the cache filled on both sides.
  void DrawSpreadAt(int32_t position);
  // Page turns in the current mode; refused while a pagination has not yet
  // drawn its first spread.
  void NextPage();
  void PreviousPage();

  // Font size 6..48 (anything else is ignored) and font name for every box;
  // the font tables are measured again before they are next used.
  void SetFontSize(int points);
  void SetFontStyle(const std::string& name);
  // The paper textures beside the program into their slots.
  void LoadPaperTextures();

  // The book page on page box `box` (kLeftPageBox or kRightPageBox) in the
  // current mode; 0 for the right box in single-page mode.
  int PageOnBox(int box) const;
  PagePlotter& plotter() { return plotter_; }
  const PageTextArea& text_area() const { return plotter_.text_area(); }
  PageCache& cache() { return cache_; }
  const PageCache& cache() const { return cache_; }
  PageTurner& turner() { return turner_; }
  PageNavigator& navigator() { return navigator_; }
  const PagePictures& pictures() const { return pictures_; }

 private:
  // The turns read the sweep preferences as they stand (the settings dialog
  // may have changed them).
  void SyncTurnSettings();

  ReaderContext& context_;
  WindowSize laid_out_size_;
  bool laid_out_ = false;
  TurnSettings turn_settings_;
  clsPrintPage composer_;
  PagePlotter plotter_;
  PagePictures pictures_;
  PageCache cache_;
  PageTurner turner_;
  PageNavigator navigator_;
};

}  // namespace vireo
