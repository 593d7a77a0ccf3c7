#include "render/page_cache.h"

#include <string_view>

#include "render/status_lamp.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

}  // namespace

PageCache::PageCache(BookDisplay& display, PageBuffers& buffers, MessagePump& pump,
                     const ReadingState& state)
    : display_(display), buffers_(buffers), pump_(pump), state_(state) {}

void PageCache::ResetCache() {
  Trap("sub resetcache", kModule, [&] {
    ResetLeftCache();
    ResetRightCache();
  });
}

void PageCache::ResetLeftCache() {
  Trap("sub resetleftcache", kModule, [&] {
    SetStamp(CacheSlot::kLeftLower, kEmpty);
    SetStamp(CacheSlot::kLeftHigher, kEmpty);
  });
}

void PageCache::ResetRightCache() {
  Trap("sub resetrightcache", kModule, [&] {
    SetStamp(CacheSlot::kRightLower, kEmpty);
    SetStamp(CacheSlot::kRightHigher, kEmpty);
  });
}

// Page numbers outside 1..page count are passed on: the box keeps its old
// image and the stamp names a page that no look-up asks for.
void PageCache::Render(PageSide side, CacheSlot slot, Int16 page) {
  display_.PlotOnPage(side, CacheBox(slot), page);
  SetStamp(slot, page);
}

void PageCache::CacheLowerPages() {
  Trap("sub cachelowerpages", kModule, [&] {
    const Int16 c = state_.current_page;
    if (state_.mode == PageMode::kSingle) {
      Render(PageSide::kLeft, CacheSlot::kLeftLower, Int16(c - 1));
      SetStamp(CacheSlot::kLeftHigher, kEmpty);
    } else {
      Render(PageSide::kLeft, CacheSlot::kLeftLower, Int16(c - 3));
      Render(PageSide::kLeft, CacheSlot::kLeftHigher, Int16(c - 2));
    }
  });
}

void PageCache::CacheHigherPages() {
  Trap("sub cachehigherpages", kModule, [&] {
    const Int16 c = state_.current_page;
    if (state_.mode == PageMode::kSingle) {
      Render(PageSide::kRight, CacheSlot::kRightLower, Int16(c + 1));
      SetStamp(CacheSlot::kRightHigher, kEmpty);
    } else {
      Render(PageSide::kRight, CacheSlot::kRightLower, Int16(c + 1));
      Render(PageSide::kRight, CacheSlot::kRightHigher, Int16(c + 2));
    }
  });
}

void PageCache::CopyPage(int source_box, int destination_box) {
  Trap("sub copypage", kModule, [&] { buffers_.CopyBox(source_box, destination_box); });
}

bool PageCache::Holds(CacheSlot slot, int page) {
  const bool hit = Stamp(slot) == page;
  ++(hit ? hits_ : misses_);
  return hit;
}

void PageCache::KeepPagesOnShow(TurnDirection direction) {
  const Int16 c = state_.current_page;
  const bool forward = direction == TurnDirection::kForward;
  const CacheSlot lower = forward ? CacheSlot::kLeftLower : CacheSlot::kRightLower;
  const CacheSlot higher = forward ? CacheSlot::kLeftHigher : CacheSlot::kRightHigher;
  SetStamp(lower, Int16(c - 1));
  CopyPage(kLeftPageBox, CacheBox(lower));
  SetStamp(higher, c);
  CopyPage(kRightPageBox, CacheBox(higher));
}

void PageCache::RefillAfterTurn(TurnDirection direction, int32_t page_count) {
  OrangeShape(buffers_, pump_);
  const int c = state_.current_page;
  if (direction == TurnDirection::kForward) {
    ResetRightCache();
    if (c < int64_t{page_count} + 1) CacheHigherPages();
  } else {
    ResetLeftCache();
    const int first_refilled = state_.mode == PageMode::kSingle ? 1 : 2;
    if (c >= first_refilled) CacheLowerPages();
  }
}

void PageCache::RefillAfterRedraw() {
  OrangeShape(buffers_, pump_);
  pump_.Yield();
  CacheLowerPages();
  CacheHigherPages();
}

std::string PageCache::DisplayCacheContents() const {
  std::string listing;
  Trap("sub displaycachecontents", kModule, [&] {
    auto line = [&](std::string_view label, CacheSlot slot) {
      listing.append(label).append(" ").append(std::to_string(Stamp(slot))).append("\n");
    };
    line("LeftCacheLowerContains:", CacheSlot::kLeftLower);
    line("LeftCacheHigherContains:", CacheSlot::kLeftHigher);
    line("RightCacheLowerContains:", CacheSlot::kRightLower);
    line("RightCacheHigherContains:", CacheSlot::kRightHigher);
  });
  return listing;
}

}  // namespace vireo
