// The page cache and the four turns, on a screenless book display.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "fake_pump.h"
#include "render/fake_book_display.h"
#include "render/page_cache.h"
#include "render/page_turner.h"
#include "support/logging.h"

namespace vireo {
namespace {

using test::FakeBookDisplay;
using test::RecordingPump;
using ::testing::Contains;

class PageTurnerTest : public testing::Test {
 protected:
  void SetUp() override { ClearActions(); }

  // Page c on show (the spread c - 1, c in double mode) with both sides of it
  // cached, as after a full redraw; the records start afresh.
  void Show(int c) {
    state.current_page = c;
    if (state.mode == PageMode::kDouble) {
      display.ShowSpread(c - 1, c);
    } else {
      display.ShowSpread(c, FakeBookDisplay::kBlank);
    }
    cache.RefillAfterRedraw();
    display.events.clear();
    display.lamps.clear();
    pump = RecordingPump();
  }

  std::vector<int16_t> Stamps() const {
    return {cache.Stamp(CacheSlot::kLeftLower), cache.Stamp(CacheSlot::kLeftHigher),
            cache.Stamp(CacheSlot::kRightLower), cache.Stamp(CacheSlot::kRightHigher)};
  }

  static constexpr int kPages = 10;
  FakeBookDisplay display{kPages};
  RecordingPump pump;
  ReadingState state;
  TurnSettings settings;
  PageCache cache{display, display, pump, state};
  PageTurner turner{display, display, pump, cache, state, settings};
};

using PageCacheTest = PageTurnerTest;

TEST_F(PageCacheTest, ARedrawFillsBothSidesAndAfterAResetEveryLookUpMisses) {
  Show(6);
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{3, 4, 7, 8}));
  EXPECT_EQ(display.content, (std::array<int, 8>{5, 6, 0, 0, 3, 4, 7, 8}));

  cache.ResetCache();
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{-1, -1, -1, -1}));
  EXPECT_EQ(display.content[6], 7) << "a reset keeps the images";
  settings.instant_page_turn = true;
  turner.WipeRightToLeft(kPages);
  EXPECT_EQ(cache.hits(), 0);
  EXPECT_EQ(cache.misses(), 2);
  EXPECT_EQ(display.CountEvents("plot 1 1 8"), 1);
  EXPECT_EQ(display.CountEvents("plot 0 0 7"), 1);
}

TEST_F(PageCacheTest, SinglePageForwardIsServedFromTheCacheButTurningBackRenders) {
  state.mode = PageMode::kSingle;
  Show(3);
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
  EXPECT_THAT(Actions().text, Contains("DBG: Drawing on 0 in SinglePagePrev of module frmMain"));
  // After the refill the next step back is a hit again.
  turner.SinglePagePrev(kPages);
  EXPECT_EQ(cache.hits(), 2);
  EXPECT_THAT(Actions().text, Contains("DBG: Copying 4 to 0 in SinglePagePrev of module frmMain"));
  EXPECT_EQ(display.content[0], 2);
}

TEST_F(PageCacheTest, DoublePageForwardThenBackCopiesThePreviousSpreadFromTheLowerCache) {
  settings.instant_page_turn = true;
  Show(4);
  turner.WipeRightToLeft(kPages);
  ASSERT_EQ(state.current_page, 6);
  display.events.clear();

  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(state.current_page, 4);
  EXPECT_EQ(display.CountEvents("copy 4 0"), 1);
  EXPECT_EQ(display.CountEvents("copy 5 1"), 1);
  EXPECT_EQ(display.CountEvents("plot 0 0"), 0);
  for (const std::string step : {"Clearing page 0", "Hiding Images on 0", "Copying 4 to 0"}) {
    EXPECT_THAT(Actions().text,
                Contains("DBG: " + step + " in sub wipelefttoright of module frmMain"));
  }
  // The spread just left went into the higher cache, the lower one refilled.
  EXPECT_EQ(Stamps(), (std::vector<int16_t>{1, 2, 5, 6}));
  EXPECT_EQ(display.content[6], 5);
  EXPECT_EQ(display.content[7], 6);
}

TEST_F(PageTurnerTest, ATurnAskedForDuringATurnIsDropped) {
  Show(4);
  int attempts = 0;
  pump.on_yield = [&] {
    if (display.lamps.back() == Lamp::kGrey) return;  // the turn has ended
    ++attempts;
    turner.WipeRightToLeft(kPages);
    turner.WipeLeftToRight(kPages);
  };
  turner.WipeRightToLeft(kPages);
  EXPECT_GT(attempts, 3);
  EXPECT_EQ(state.current_page, 6);
  EXPECT_EQ(display.lamps, (std::vector<Lamp>{Lamp::kRed, Lamp::kOrange, Lamp::kGrey}));
  EXPECT_FALSE(state.busy);
}

TEST_F(PageTurnerTest, TurningPastEitherEndStaysThereAndBackShowsTheCover) {
  state.mode = PageMode::kSingle;
  Show(9);
  turner.SinglePageNext(kPages);
  ASSERT_EQ(state.current_page, 10);
  turner.SinglePageNext(kPages);
  EXPECT_EQ(state.current_page, 10);
  EXPECT_EQ(display.CountEvents("clear 0"), 1) << "only the first turn drew";

  Show(1);
  turner.SinglePagePrev(kPages);
  EXPECT_EQ(state.current_page, 1);
  EXPECT_EQ(display.CountEvents("clear 0"), 0);
  EXPECT_TRUE(display.cover_shown);

  state.mode = PageMode::kDouble;
  Show(2);
  display.cover_shown = false;
  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(state.current_page, 2);
  EXPECT_TRUE(display.stretch_widths.empty());
  EXPECT_TRUE(display.cover_shown);
}

TEST_F(PageTurnerTest, DoubleForwardOntoALoneLastPageClearsItThenOnlyKeepsThePagesOnShow) {
  display.page_count = 11;
  Show(10);
  turner.WipeRightToLeft(11);
  EXPECT_EQ(display.content[1], FakeBookDisplay::kBlank);
  EXPECT_EQ(display.content[0], 9) << "the left page stays";
  EXPECT_EQ(state.current_page, 12);
  EXPECT_EQ(display.CountEvents("plot"), 0) << "c = n + 1: the higher cache is not refilled";
  EXPECT_EQ(cache.Stamp(CacheSlot::kRightLower), -1);

  display.events.clear();
  turner.WipeRightToLeft(11);
  EXPECT_EQ(display.events, (std::vector<std::string>{"hide cover", "copy 0 4", "copy 1 5"}));
  EXPECT_EQ(state.current_page, 14);

  Show(10);
  display.book_loaded = false;
  turner.WipeRightToLeft(11);
  EXPECT_EQ(display.CountEvents("title page"), 1);
}

TEST_F(PageTurnerTest, SqueezedStepsAndPausesFollowTheFrameAndStripWidths) {
  // Frame 4500: forward squeezes while x > 2250 (x = 4500 - k strip), pauses for the hand-over,
  // then once per strip laying the left page down; backward squeezes while x < 2250.
  struct Case {
    bool instant;
    int strip;
    std::vector<double> forward_widths;
    int forward_pauses;
    std::vector<double> backward_widths;
  };
  const Case cases[] = {
      {false, 2100, {2400, 300}, 2 + 1 + 3, {2400}},
      {false, 5000, {0}, 1 + 1 + 1, {}},  // a strip wider than the page
      {true, 2100, {}, 0, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE((c.instant ? "instant, strip " : "strip ") + std::to_string(c.strip));
    settings.instant_page_turn = c.instant;
    settings.page_sweep_width = c.strip;
    Show(4);
    display.stretch_widths.clear();
    turner.WipeRightToLeft(kPages);
    EXPECT_EQ(display.stretch_widths, c.forward_widths);
    EXPECT_EQ(pump.pauses, c.forward_pauses);
    EXPECT_EQ(pump.slept_ms, 5 * c.forward_pauses);
    EXPECT_TRUE(display.AtRest());
    EXPECT_EQ(display.content[0], 5);
    EXPECT_EQ(display.content[1], 6);

    display.stretch_widths.clear();
    pump = RecordingPump();
    turner.WipeLeftToRight(kPages);
    EXPECT_EQ(display.stretch_widths, c.backward_widths);
    EXPECT_EQ(pump.pauses, static_cast<int>(c.backward_widths.size()));
    EXPECT_TRUE(display.AtRest());
    EXPECT_EQ(display.content[0], 3);
    EXPECT_EQ(display.content[1], 4);
    EXPECT_EQ(state.current_page, 4);
  }
  EXPECT_EQ(display.mismatched_stretches, 0);
  EXPECT_EQ(display.negative_widths, 0);
}

TEST_F(PageTurnerTest, ASweepSqueezesTheTurnedPageAtTheSpineOverThePageItUncovers) {
  Show(4);
  turner.WipeRightToLeft(kPages);
  std::vector<FakeBookDisplay::FrameView> squeezed, laid;
  for (const auto& view : display.views) {
    if (view.squeezed) squeezed.push_back(view);
    if (view.box == 0) laid.push_back(view);
  }
  ASSERT_EQ(squeezed.size(), 2u);
  for (const auto& view : squeezed) {
    EXPECT_EQ(view.at_spine, 4) << "the turned page, squeezed at the spine";
    EXPECT_EQ(view.at_outer_edge, 6) << "the new right page beneath it";
  }
  ASSERT_EQ(laid.size(), 3u);
  EXPECT_EQ(laid[0].at_spine, 5) << "the new left page grows from the spine";
  EXPECT_EQ(laid[0].at_outer_edge, 3) << "over the old left page";
  EXPECT_EQ(laid[2].at_outer_edge, 5);

  display.views.clear();
  turner.WipeLeftToRight(kPages);
  ASSERT_TRUE(display.views.at(0).squeezed);
  EXPECT_EQ(display.views[0].at_spine, 5) << "the turned page, squeezed at the spine";
  EXPECT_EQ(display.views[0].at_outer_edge, 3) << "the new left page beneath it";
}

}  // namespace
}  // namespace vireo
