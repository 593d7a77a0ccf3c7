#pragma once

#include <cstdint>
#include <optional>

#include "render/book_display.h"
#include "render/page_cache.h"
#include "support/checked_int16.h"

namespace vireo {

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
