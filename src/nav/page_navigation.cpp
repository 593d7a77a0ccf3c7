#include "nav/page_navigation.h"

#include <algorithm>

#include "support/error_trap.h"

namespace vireo {

Int16 WhichPage(const PageIndex& index, int32_t position) {
  Int16 page = 0;
  Trap("function whichpage", "frmMain", [&] {
    if (position == 0) {
      page = -1;
      return;
    }
    // A plain scan: "the first page whose start lies beyond" is kept exactly,
    // whatever order the starts are in.
    for (int32_t p = 1; p <= index.count; ++p) {
      if (index.PageStart(p) > position) {
        page = p - 1;
        return;
      }
    }
  });
  return page;
}

PageNavigator::PageNavigator(BookDisplay& display, ReadingState& state)
    : display_(display), state_(state) {}

void PageNavigator::GotoPage(PageChooser& chooser, int32_t page_count) {
  if (navigation_busy_ || page_count == 0) return;
  navigation_busy_ = true;
  Trap("sub gotopage", "frmMain", [&] {
    const std::optional<int> chosen = chooser.ChoosePage(state_.current_page, page_count);
    if (!chosen) return;
    // A spread starts on an odd page.
    int64_t page = std::min<int64_t>(*chosen, page_count);
    if (page % 2 == 0) --page;
    if (page < 1) page = 1;
    display_.ClearPage(kLeftPageBox);
    state_.current_page = page;
    display_.PlotOnPage(PageSide::kLeft, kLeftPageBox, state_.current_page);
    display_.ClearPage(kRightPageBox);
    state_.current_page = page + 1;
    display_.PlotOnPage(PageSide::kRight, kRightPageBox, state_.current_page);
  });
  // The flag is the last statement of the procedure and is cleared even
  // after an error, as the error convention carries on with it.
  navigation_busy_ = false;
}

}  // namespace vireo
