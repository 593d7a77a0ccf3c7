#pragma once

#include <cstdint>
#include <string_view>

#include "render/book_display.h"
#include "render/page_cache.h"
#include "render/sweep.h"
#include "support/user_interaction.h"

namespace vireo {

// The reader's choices that shape a turn.
struct TurnSettings {
  bool instant_page_turn = false;  // "InstantPageTurn": no sweep animation
  int page_sweep_width = 2100;     // "PageSweepWidth": twips per sweep step
  bool debug_switch = false;       // DisplayCacheContents after every turn
};

// Moves the book one page (single-page mode) or one spread (double-page
// mode) forward or back. The navigation commands choose the procedure by the
// page mode. page_count is the page index's count n.
//
// Every turn runs in one frame: a turn asked for while state.busy is set is
// dropped; otherwise busy set, lamp red, cover hidden, the pages on show kept
// in the cache of the side being left, the turn proper, then lamp orange and
// the cache of the side moved towards reset and refilled, busy cleared, lamp
// grey. An error (a 16-bit overflow of the page number, a failing copy) is
// logged under the procedure's name ("SinglePageNext", "SinglePagePrev",
// "sub wiperighttoleft", "sub wipelefttoright" of "frmMain") and leaves the
// turn with the busy flag still set: turns are then refused until the next
// full redraw clears it.
class PageTurner {
 public:
  // All arguments must outlive the turner; settings are read at every turn.
  PageTurner(BookDisplay& display, PageBuffers& buffers, MessagePump& pump, PageCache& cache,
             ReadingState& state, const TurnSettings& settings);

  // Single mode, one page forward: c + 1 from Page(6) or rendered into
  // Page(0). On the last page c stays n and nothing is drawn.
  void SinglePageNext(int32_t page_count);
  // Single mode, one page back: c - 1 from Page(4) or rendered into Page(0);
  // on page 1 c stays 1. On page 1 the cover is shown again.
  void SinglePagePrev(int32_t page_count);
  // Double mode, one spread forward: the right page is turned over to the
  // left (animated unless instant), then c := c + 2. At the end of the book
  // (c + 1 >= n) nothing is turned; when c + 1 = n the right page is
  // cleared (the title page drawn when no book is loaded). c still grows by
  // two there, so it may pass n; the higher cache is then not refilled.
  void WipeRightToLeft(int32_t page_count);
  // Double mode, one spread back to c - 3, c - 2 (animated unless instant),
  // then c := c - 2. When c - 3 < 1 nothing is turned and c stays. With the
  // first spread on show (c = 2) the cover is shown again.
  void WipeLeftToRight(int32_t page_count);

 private:
  template <typename TurnProper>
  void RunTurn(TurnDirection direction, int32_t page_count, TurnProper&& turn_proper);

  // Puts page into box: a copy of slot's image when its stamp names the
  // page, else rendered. With a procedure name the choice is debug-logged.
  void ShowPage(CacheSlot slot, Int16 page, PageSide side, int box,
                std::string_view logged_procedure = {});

  void TurnForwardAnimated(Int16 c);
  void TurnBackAnimated(Int16 c);

  BookDisplay& display_;
  PageBuffers& buffers_;
  MessagePump& pump_;
  PageCache& cache_;
  ReadingState& state_;
  const TurnSettings& settings_;
  PageSweep sweep_;
};

}  // namespace vireo
