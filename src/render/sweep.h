#pragma once

#include "render/book_display.h"
#include "render/page_buffers.h"
#include "render/page_cache.h"
#include "support/user_interaction.h"

namespace vireo {

// The sweep animation of a double-page turn, in strips of a given width in
// twips with a 5 ms pause after every drawn step. The page images must all
// be composed before a sweep starts; no text is laid out while it runs.
//
// Box roles and stacking (each frame stacks its show box over its work box):
//   forward  - Page(1), on top of the right frame, is the page turned over:
//              it narrows towards the spine (its left edge stays at 0) and
//              shows the old right page, kept in Page(2), squeezed into it;
//              Page(3) beneath it shows the new right page it uncovers. Then
//              Page(0) carries the new left page (kept in Page(3)) and grows
//              from the spine (its right edge stays at the spine) over
//              Page(2), which shows the old left page meanwhile.
//   backward - Page(0), on top of the left frame, is the page turned over:
//              it narrows towards the spine (its right edge stays there) and
//              shows the old left page, kept in Page(3), squeezed into it;
//              Page(2) beneath it shows the new left page it uncovers.
// Every box is back at its frame's full width and left edge 0 when a sweep
// step has finished, and the work boxes are hidden again.
//
// A strip width of 0 or less draws no steps (the sweep is skipped).
class PageSweep {
 public:
  // All must outlive the sweep; the cache provides CopyPage.
  PageSweep(BookDisplay& display, PageBuffers& buffers, MessagePump& pump, PageCache& cache);

  // Forward, first half: for x from the right frame's width W down to 0 in
  // steps of strip (no partial last strip), while x > W / 2 Page(1) loses
  // one strip of width and the whole of Page(2) is squeezed into it, then a
  // yield and a pause; the other steps only yield. Expects Page(2) to hold
  // the page being turned and Page(3) the new right page.
  void TurnRightPageOver(int strip_twips);

  // Forward, hand-over: hides the work boxes, restores Page(1), puts the
  // new right page from Page(3) into it and pauses once.
  void HandOverRightPage();

  // Forward, second half: Page(2) (the old left page) is shown under
  // Page(0); for w from strip up to the left frame's width + strip, Page(0)
  // is widened to w (at most the frame's width) from the spine outwards and
  // Page(3) copied into it, with a pause each step. Page(2) is hidden again.
  void LayDownLeftPage(int strip_twips);

  // Backward: for x from strip up to the left frame's width W, while x < W/2
  // Page(0) loses one strip of width at its outer edge and the whole of
  // Page(3) is squeezed into it, then a yield and a pause; the other steps
  // only yield. Afterwards the work boxes are hidden, Page(0) is restored
  // and the new left page copied from Page(2) into it. Expects Page(2) to be
  // shown under Page(0) with the new left page and Page(3) to hold the old.
  void TurnLeftPageOver(int strip_twips);

 private:
  void Pause();
  void RestoreBox(int box, int frame);
  void HideWorkBoxes();

  BookDisplay& display_;
  PageBuffers& buffers_;
  MessagePump& pump_;
  PageCache& cache_;
};

}  // namespace vireo
