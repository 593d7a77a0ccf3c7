#include "render/page_turner.h"

#include <string>

#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/logging.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr std::string_view kSinglePageNext = "SinglePageNext";
constexpr std::string_view kSinglePagePrev = "SinglePagePrev";
constexpr std::string_view kWipeRightToLeft = "sub wiperighttoleft";
constexpr std::string_view kWipeLeftToRight = "sub wipelefttoright";

}  // namespace

PageTurner::PageTurner(BookDisplay& display, PageBuffers& buffers, MessagePump& pump,
                       PageCache& cache, ReadingState& state, const TurnSettings& settings)
    : display_(display),
      buffers_(buffers),
      pump_(pump),
      cache_(cache),
      state_(state),
      settings_(settings),
      sweep_(display, buffers, pump, cache) {}

template <typename TurnProper>
void PageTurner::RunTurn(TurnDirection direction, int32_t page_count, TurnProper&& turn_proper) {
  // The yields inside a turn let input through: the busy flag, not a lock,
  // keeps a second turn out, and the request is dropped rather than queued.
  // It is raised before the red lamp because the lamp yields as well.
  if (state_.busy) return;
  state_.busy = true;
  RedShape(buffers_, pump_);
  display_.HideCover();
  cache_.KeepPagesOnShow(direction);
  turn_proper();
  cache_.RefillAfterTurn(direction, page_count);
  state_.busy = false;
  NoShape(buffers_, pump_);
  if (settings_.debug_switch) cache_.DisplayCacheContents();
}

void PageTurner::ShowPage(CacheSlot slot, Int16 page, PageSide side, int box,
                          std::string_view logged_procedure) {
  if (cache_.Holds(slot, page)) {
    if (!logged_procedure.empty()) {
      LogDebug("Copying " + std::to_string(CacheBox(slot)) + " to " + std::to_string(box),
               logged_procedure, kModule);
    }
    cache_.CopyPage(CacheBox(slot), box);
  } else {
    if (!logged_procedure.empty()) {
      LogDebug("Drawing on " + std::to_string(box), logged_procedure, kModule);
    }
    display_.PlotOnPage(side, box, page);
  }
}

void PageTurner::SinglePageNext(int32_t page_count) {
  Trap(kSinglePageNext, kModule, [&] {
    RunTurn(TurnDirection::kForward, page_count, [&] {
      state_.current_page += 1;
      const Int16 c = state_.current_page;
      if (c <= page_count) {
        display_.ClearPage(kLeftPageBox);
        ShowPage(CacheSlot::kRightLower, c, PageSide::kLeft, kLeftPageBox);
      } else {
        state_.current_page = page_count;  // the page on show stays
      }
    });
  });
}

void PageTurner::SinglePagePrev(int32_t page_count) {
  Trap(kSinglePagePrev, kModule, [&] {
    RunTurn(TurnDirection::kBackward, page_count, [&] {
      state_.current_page -= 1;
      const Int16 c = state_.current_page;
      if (c >= 1) {
        display_.ClearPage(kLeftPageBox);
        ShowPage(CacheSlot::kLeftLower, c, PageSide::kLeft, kLeftPageBox, kSinglePagePrev);
      } else {
        state_.current_page = 1;
      }
      if (state_.current_page == 1) display_.ShowCover();
    });
  });
}

void PageTurner::WipeRightToLeft(int32_t page_count) {
  Trap(kWipeRightToLeft, kModule, [&] {
    RunTurn(TurnDirection::kForward, page_count, [&] {
      const Int16 c = state_.current_page;
      const Int16 next_left = Int16(c + 1);
      if (next_left >= page_count) {
        // The end of the book: no spread follows. c still moves on below.
        if (next_left == page_count) {
          display_.ClearPage(kRightPageBox);
          if (!display_.BookLoaded()) display_.DrawTitlePage();
        }
      } else if (settings_.instant_page_turn) {
        display_.ClearPage(kRightPageBox);
        ShowPage(CacheSlot::kRightHigher, Int16(c + 2), PageSide::kRight, kRightPageBox);
        ShowPage(CacheSlot::kRightLower, next_left, PageSide::kLeft, kLeftPageBox);
      } else {
        TurnForwardAnimated(c);
      }
      state_.current_page = Int16(c + 2);
    });
  });
}

void PageTurner::TurnForwardAnimated(Int16 c) {
  // The new right page waits under Page(1), to be uncovered as it narrows;
  // Page(2) keeps the turned page's image, the source of the squeezed strips.
  display_.ClearPage(kRightWorkBox);
  ShowPage(CacheSlot::kRightHigher, Int16(c + 2), PageSide::kRight, kRightWorkBox);
  buffers_.RaiseBox(kRightPageBox);
  buffers_.SetBoxVisible(kRightWorkBox, Visibility::kShown);
  pump_.Yield();
  cache_.CopyPage(kRightPageBox, kLeftWorkBox);
  sweep_.TurnRightPageOver(settings_.page_sweep_width);
  sweep_.HandOverRightPage();

  // The old left page stays in view (Page(2)) while the new one (composed
  // in Page(3)) grows over it from the spine.
  cache_.CopyPage(kLeftPageBox, kLeftWorkBox);
  ShowPage(CacheSlot::kRightLower, Int16(c + 1), PageSide::kLeft, kRightWorkBox);
  sweep_.LayDownLeftPage(settings_.page_sweep_width);
}

void PageTurner::WipeLeftToRight(int32_t page_count) {
  Trap(kWipeLeftToRight, kModule, [&] {
    RunTurn(TurnDirection::kBackward, page_count, [&] {
      const Int16 c = state_.current_page;
      if (Int16(c - 3) >= 1) {
        if (settings_.instant_page_turn) {
          LogDebug("Clearing page " + std::to_string(kLeftPageBox), kWipeLeftToRight, kModule);
          display_.ClearPage(kLeftPageBox);
          // The pictures are part of the page picture: clearing it hid them.
          LogDebug("Hiding Images on " + std::to_string(kLeftPageBox), kWipeLeftToRight, kModule);
          ShowPage(CacheSlot::kLeftLower, Int16(c - 3), PageSide::kLeft, kLeftPageBox,
                   kWipeLeftToRight);
        } else {
          TurnBackAnimated(c);
        }
        ShowPage(CacheSlot::kLeftHigher, Int16(c - 2), PageSide::kRight, kRightPageBox);
        state_.current_page = Int16(c - 2);
      }
      if (state_.current_page == 2) display_.ShowCover();
    });
  });
}

void PageTurner::TurnBackAnimated(Int16 c) {
  // The new left page waits under Page(0), to be uncovered as it narrows;
  // Page(3) keeps the turned page's image, the source of the squeezed strips.
  display_.ClearPage(kLeftWorkBox);
  ShowPage(CacheSlot::kLeftLower, Int16(c - 3), PageSide::kLeft, kLeftWorkBox);
  buffers_.RaiseBox(kLeftPageBox);
  buffers_.SetBoxVisible(kLeftWorkBox, Visibility::kShown);
  cache_.CopyPage(kLeftPageBox, kRightWorkBox);
  sweep_.TurnLeftPageOver(settings_.page_sweep_width);
}

}  // namespace vireo
