#pragma once

#include <cstdint>
#include <string>

#include "render/book_display.h"
#include "render/page_buffers.h"
#include "support/checked_int16.h"
#include "support/user_interaction.h"

namespace vireo {

// The main window's reading state that the cache, the page turns and page
// navigation read and change. The window owns it.
struct ReadingState {
  // The page on show: in double-page mode the right-hand, even page of the
  // spread (the left page is one less). 16-bit: arithmetic past its range
  // raises error 6.
  Int16 current_page = 1;
  PageMode mode = PageMode::kDouble;
  // True while a turn or a full redraw is in progress; turns asked for while
  // it is set are dropped.
  bool busy = false;
};

enum class TurnDirection { kForward, kBackward };

// The four cache slots and the stamps that describe them.
enum class CacheSlot {
  kLeftLower,    // LeftCacheLower, image in Page(4)
  kLeftHigher,   // LeftCacheHigher, Page(5)
  kRightLower,   // RightCacheLower, Page(6)
  kRightHigher,  // RightCacheHigher, Page(7)
};

// The box that holds a slot's image (4..7).
constexpr int CacheBox(CacheSlot slot) { return kLowerCacheFirst + static_cast<int>(slot); }

// The page cache: up to four already rendered pages in the hidden boxes
// Page(4)..Page(7), the two before the pages on show ("lower") and the two
// after them ("higher"), each with a 16-bit page-number stamp; -1 means the
// box holds no page. A stamp is set only when its box is written; a reset
// never clears the images. Stamps may name pages outside 1..page count (the
// box then kept its old image): such stamps never match a wanted page.
//
// Every public procedure traps its own errors under its logged name ("sub
// resetcache", "sub copypage", "sub cachehigherpages" ... of "frmMain");
// stamps keep what they had been given up to the error. The exceptions are
// KeepPagesOnShow and RefillAfterTurn, steps of a turn that leave the turn
// on an error.
class PageCache {
 public:
  static constexpr int16_t kEmpty = -1;

  // display draws the pages into buffers; all four must outlive the cache.
  PageCache(BookDisplay& display, PageBuffers& buffers, MessagePump& pump,
            const ReadingState& state);

  // All four stamps, the left (lower) pair or the right (higher) pair to -1.
  void ResetCache();
  void ResetLeftCache();
  void ResetRightCache();

  // Renders the pages before the pages on show into the lower cache.
  // Single mode: c - 1 into Page(4), LeftCacheHigher := -1. Double mode:
  // c - 3 into Page(4) and c - 2 into Page(5) (the previous spread).
  void CacheLowerPages();
  // Renders the pages after the pages on show into the higher cache.
  // Single mode: c + 1 into Page(6), RightCacheHigher := -1. Double mode:
  // c + 1 into Page(6) and c + 2 into Page(7).
  void CacheHigherPages();

  // Copies one box's whole image onto another (1:1). No stamp changes.
  void CopyPage(int source_box, int destination_box);

  // Look-up: true when slot's stamp names `page` (a hit). Counts the hit or
  // the miss.
  bool Holds(CacheSlot slot, int page);

  // Before a turn: the images on show go into the cache of the side being
  // left, stamped with the double-page numbers c - 1 (Page(0)) and c
  // (Page(1)) in both modes. Forward: Page(0) -> Page(4), Page(1) -> Page(5);
  // backward: Page(0) -> Page(6), Page(1) -> Page(7). In single-page mode
  // Page(0) shows page c, so the kept image is stamped one lower than the
  // page it shows and a reversal never finds it: it is rendered afresh.
  void KeepPagesOnShow(TurnDirection direction);

  // After a turn: lamp orange, then the side moved towards is reset and
  // refilled. Forward: ResetRightCache, CacheHigherPages if c < n + 1.
  // Backward: ResetLeftCache, CacheLowerPages if c >= 1 (single mode) or
  // c >= 2 (double mode).
  void RefillAfterTurn(TurnDirection direction, int32_t page_count);

  // After a full redraw of the pages on show: lamp orange, one yield, then
  // CacheLowerPages and CacheHigherPages.
  void RefillAfterRedraw();

  // The diagnostic listing of the four stamps, called after a turn when the
  // debug switch is on. It shows nothing; the listing is returned for a
  // debugger or a test.
  std::string DisplayCacheContents() const;

  int16_t Stamp(CacheSlot slot) const { return stamps_[static_cast<int>(slot)]; }

  // Test seam: look-ups since construction.
  int hits() const { return hits_; }
  int misses() const { return misses_; }

 private:
  void Render(PageSide side, CacheSlot slot, Int16 page);
  void SetStamp(CacheSlot slot, Int16 page) { stamps_[static_cast<int>(slot)] = page.value(); }

  BookDisplay& display_;
  PageBuffers& buffers_;
  MessagePump& pump_;
  const ReadingState& state_;
  int16_t stamps_[4] = {kEmpty, kEmpty, kEmpty, kEmpty};
  int hits_ = 0;
  int misses_ = 0;
};

}  // namespace vireo
