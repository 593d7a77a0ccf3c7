#pragma once

#include <cstdint>
#include <optional>

#include "layout/page_index.h"
#include "render/book_display.h"
#include "render/page_cache.h"
#include "support/checked_int16.h"

namespace vireo {

// The page a 1-based character position lies on: -1 for position 0 (no
// position); otherwise p - 1 for the first page p (1..count) whose start lies
// beyond the position, and 0 when none does, i.e. for a position on the last
// page. Callers clamp results below 1 to page 1 and above the count to the
// count, so a position on the last page lands on page 1. An error (a page
// number beyond 16 bits) is logged as "function whichpage" of "frmMain" and
// gives 0.
Int16 WhichPage(const PageIndex& index, int32_t position);

// The page dialog frmPageNav as GotoPage sees it.
class PageChooser {
 public:
  virtual ~PageChooser() = default;
  // Shows the dialog modally for the current page and the page count; the
  // chosen page (SelectedPage, not yet clamped), or nullopt when cancelled.
  virtual std::optional<int> ChoosePage(int current_page, int page_count) = 0;
};

// Jumping to a page chosen in the page dialog ("Goto Page...", a click on
// the page-number label). Errors are logged as "sub gotopage" of "frmMain".
class PageNavigator {
 public:
  // display and state must outlive the navigator.
  PageNavigator(BookDisplay& display, ReadingState& state);

  // Unless a jump is under way or there are no pages: asks chooser for a
  // page p; on a choice, clamps p to page_count, steps an even p back by one,
  // raises p below 1 to 1, and draws p on the left page and p + 1 on the
  // right page. The current page ends as p + 1 (in single-page mode too).
  // The page cache is left as it is.
  void GotoPage(PageChooser& chooser, int32_t page_count);

  // True while GotoPage runs (the dialog is open); the pages' context menu
  // is not offered meanwhile.
  bool navigation_busy() const { return navigation_busy_; }

 private:
  BookDisplay& display_;
  ReadingState& state_;
  bool navigation_busy_ = false;
};

}  // namespace vireo
