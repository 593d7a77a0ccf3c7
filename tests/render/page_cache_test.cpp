#include "render/page_cache.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "render/fake_book_display.h"
#include "render/page_turner.h"
#include "support/logging.h"

namespace vireo {
namespace {

using test::FakeBookDisplay;
using test::RecordingPump;

class PageCacheTest : public testing::Test {
 protected:
  void SetUp() override {
    ClearActions();
    settings.instant_page_turn = true;
  }

  // The spread or page c shown and both sides cached, as after pagination.
  void Redraw(int c) {
    state.current_page = c;
    if (state.mode == PageMode::kDouble) {
      display.ShowSpread(c - 1, c);
    } else {
      display.ShowSpread(c, FakeBookDisplay::kBlank);
    }
    cache.RefillAfterRedraw();
    display.events.clear();
  }

  std::vector<int16_t> Stamps() const {
    return {cache.Stamp(CacheSlot::kLeftLower), cache.Stamp(CacheSlot::kLeftHigher),
            cache.Stamp(CacheSlot::kRightLower), cache.Stamp(CacheSlot::kRightHigher)};
  }

  bool Logged(const std::string& entry) const {
    for (const auto& text : Actions().text) {
      if (text == entry) return true;
    }
    return false;
  }

  static constexpr int kPages = 10;
  FakeBookDisplay display{kPages};
  RecordingPump pump;
  ReadingState state;
  TurnSettings settings;
  PageCache cache{display, pump, state};
  PageTurner turner{display, pump, cache, state, settings};
};

TEST_F(PageCacheTest, RedrawRefillFillsBothSidesOfTheSpreadWithTheLampOrange) {
  Redraw(6);
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{3, 4, 7, 8}));
  EXPECT_EQ(display.content[4], 3);
  EXPECT_EQ(display.content[5], 4);
  EXPECT_EQ(display.content[6], 7);
  EXPECT_EQ(display.content[7], 8);
  EXPECT_EQ(display.lamps, std::vector<Lamp>{Lamp::kOrange});
  EXPECT_EQ(pump.yields, 2);  // the lamp's and one more before drawing
}

TEST_F(PageCacheTest, AfterAResetEveryLookUpMissesAndThePagesAreRendered) {
  Redraw(6);
  cache.ResetCache();
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{-1, -1, -1, -1}));
  EXPECT_EQ(display.content[6], 7) << "a reset keeps the images";

  turner.WipeRightToLeft(kPages);
  EXPECT_EQ(cache.hits(), 0);
  EXPECT_EQ(cache.misses(), 2);
  EXPECT_EQ(display.CountEvents("plot 1 1 8"), 1);
  EXPECT_EQ(display.CountEvents("plot 0 0 7"), 1);
  EXPECT_EQ(display.content[0], 7);
  EXPECT_EQ(display.content[1], 8);
}

TEST_F(PageCacheTest, ForwardRefillOnTheLastPageStampsPagesThatNeverMatch) {
  state.mode = PageMode::kSingle;
  Redraw(9);
  turner.SinglePageNext(kPages);  // 9 -> 10, the refill asks for 11
  ASSERT_EQ(state.current_page, 10);
  EXPECT_EQ(display.CountEvents("plot 1 6 11"), 1);
  EXPECT_EQ(cache.Stamp(CacheSlot::kRightLower), 11);
  EXPECT_EQ(cache.Stamp(CacheSlot::kRightHigher), -1);

  display.content[6] = 42;        // whatever the box holds
  turner.SinglePageNext(kPages);  // stays on 10
  EXPECT_EQ(state.current_page, 10);
  EXPECT_EQ(display.content[6], 42) << "nothing is drawn for page 11";
  EXPECT_EQ(display.content[0], 10);
  EXPECT_EQ(display.CountEvents("clear 0"), 1) << "only the first turn drew";
}

TEST_F(PageCacheTest, SinglePageForwardIsServedFromTheCacheButTurningBackRenders) {
  state.mode = PageMode::kSingle;
  Redraw(3);
  turner.SinglePageNext(kPages);
  EXPECT_EQ(cache.hits(), 1);
  EXPECT_EQ(display.CountEvents("copy 6 0"), 1);
  // The page that was on show (3) was kept in Page(4) stamped 2.
  EXPECT_EQ(display.content[4], 3);
  EXPECT_EQ(cache.Stamp(CacheSlot::kLeftLower), 2);

  turner.SinglePagePrev(kPages);
  EXPECT_EQ(state.current_page, 3);
  EXPECT_EQ(cache.misses(), 1);
  EXPECT_EQ(display.CountEvents("plot 0 0 3"), 1);
  EXPECT_TRUE(Logged("DBG: Drawing on 0 in SinglePagePrev of module frmMain"));
  // After the refill the next step back is a hit again.
  turner.SinglePagePrev(kPages);
  EXPECT_EQ(cache.hits(), 2);
  EXPECT_TRUE(Logged("DBG: Copying 4 to 0 in SinglePagePrev of module frmMain"));
  EXPECT_EQ(display.content[0], 2);
}

TEST_F(PageCacheTest, DoublePageForwardThenBackCopiesThePreviousSpreadFromTheLowerCache) {
  Redraw(4);
  turner.WipeRightToLeft(kPages);
  ASSERT_EQ(state.current_page, 6);
  display.events.clear();

  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(state.current_page, 4);
  EXPECT_EQ(display.CountEvents("copy 4 0"), 1);
  EXPECT_EQ(display.CountEvents("copy 5 1"), 1);
  EXPECT_EQ(display.CountEvents("plot 0 0"), 0);
  EXPECT_EQ(display.content[0], 3);
  EXPECT_EQ(display.content[1], 4);
  EXPECT_TRUE(Logged("DBG: Clearing page 0 in sub wipelefttoright of module frmMain"));
  EXPECT_TRUE(Logged("DBG: Hiding Images on 0 in sub wipelefttoright of module frmMain"));
  EXPECT_TRUE(Logged("DBG: Copying 4 to 0 in sub wipelefttoright of module frmMain"));
  // The spread just left went into the higher cache, the lower one refilled.
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{1, 2, 5, 6}));
  EXPECT_EQ(display.content[6], 5);
  EXPECT_EQ(display.content[7], 6);
}

}  // namespace
}  // namespace vireo
