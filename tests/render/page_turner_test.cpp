#include "render/page_turner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "render/fake_book_display.h"
#include "support/logging.h"

namespace vireo {
namespace {

using test::FakeBookDisplay;
using test::RecordingPump;

class PageTurnerTest : public testing::Test {
 protected:
  void SetUp() override { ClearActions(); }

  // Spread (c - 1, c) on show with both sides of it cached.
  void ShowSpread(int c) {
    state.current_page = c;
    display.ShowSpread(c - 1, c);
    cache.RefillAfterRedraw();
    display.events.clear();
    display.lamps.clear();
    pump = RecordingPump();
  }

  static constexpr int kPages = 10;
  FakeBookDisplay display{kPages, 4500};
  RecordingPump pump;
  ReadingState state;
  TurnSettings settings;
  PageCache cache{display, pump, state};
  PageTurner turner{display, pump, cache, state, settings};
};

TEST_F(PageTurnerTest, ATurnAskedForDuringATurnIsDropped) {
  ShowSpread(4);
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
  EXPECT_EQ(display.content[0], 5);
  EXPECT_EQ(display.content[1], 6);
}

TEST_F(PageTurnerTest, TurnsStopAtBothEndsOfTheBook) {
  state.mode = PageMode::kSingle;
  state.current_page = kPages;
  display.ShowSpread(kPages, FakeBookDisplay::kBlank);
  turner.SinglePageNext(kPages);
  EXPECT_EQ(state.current_page, kPages);
  EXPECT_EQ(display.content[0], kPages);
  EXPECT_EQ(display.CountEvents("clear 0"), 0);
  EXPECT_EQ(display.CountEvents("plot 0 0"), 0);

  state.current_page = 1;
  display.ShowSpread(1, FakeBookDisplay::kBlank);
  display.events.clear();
  turner.SinglePagePrev(kPages);
  EXPECT_EQ(state.current_page, 1);
  EXPECT_EQ(display.CountEvents("clear 0"), 0);
  EXPECT_TRUE(display.cover_shown) << "back on page 1 the cover returns";

  state.mode = PageMode::kDouble;
  ShowSpread(2);
  display.cover_shown = false;
  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(state.current_page, 2);
  EXPECT_EQ(display.content[0], 1);
  EXPECT_EQ(display.stretches, 0);
  EXPECT_TRUE(display.cover_shown);
}

TEST_F(PageTurnerTest, DoubleForwardOntoALastLonePageClearsTheRightPage) {
  display.page_count = 11;
  ShowSpread(10);
  turner.WipeRightToLeft(11);
  EXPECT_EQ(display.content[1], FakeBookDisplay::kBlank);
  EXPECT_EQ(display.content[0], 9) << "the left page stays";
  EXPECT_EQ(display.CountEvents("title page"), 0);
  EXPECT_EQ(state.current_page, 12);
  EXPECT_EQ(display.CountEvents("plot"), 0) << "c = n + 1: the higher cache is not refilled";
  EXPECT_EQ(cache.Stamp(CacheSlot::kRightLower), -1);

  ShowSpread(10);
  display.book_loaded = false;
  turner.WipeRightToLeft(11);
  EXPECT_EQ(display.CountEvents("title page"), 1);
}

TEST_F(PageTurnerTest, DoubleForwardPastTheEndOnlyRunsTheRefill) {
  ShowSpread(kPages);
  turner.WipeRightToLeft(kPages);
  EXPECT_EQ(display.events, (std::vector<std::string>{"hide cover", "copy 0 4", "copy 1 5"}));
  EXPECT_EQ(display.content[0], 9);
  EXPECT_EQ(display.content[1], 10);
  EXPECT_EQ(state.current_page, kPages + 2);
  EXPECT_EQ(cache.Stamp(CacheSlot::kRightLower), -1);
  EXPECT_EQ(display.lamps, (std::vector<Lamp>{Lamp::kRed, Lamp::kOrange, Lamp::kGrey}));
}

TEST_F(PageTurnerTest, InstantTurnsNeitherStretchNorPause) {
  settings.instant_page_turn = true;
  ShowSpread(4);
  turner.WipeRightToLeft(kPages);
  turner.WipeLeftToRight(kPages);
  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(state.current_page, 2);
  EXPECT_EQ(display.stretches, 0);
  EXPECT_EQ(pump.pauses, 0);
  EXPECT_EQ(display.content[0], 1);
  EXPECT_EQ(display.content[1], 2);
}

TEST_F(PageTurnerTest, ForwardSweepNarrowsTheTurnedPageOverTheNewOneThenLaysDownTheLeftPage) {
  ShowSpread(4);
  turner.WipeRightToLeft(kPages);
  // W = 4500, strip 2100: x = 4500 and 2400 lie beyond W / 2 and are drawn,
  // x = 300 only yields.
  EXPECT_EQ(display.stretch_widths, (std::vector<double>{2400, 300}));
  EXPECT_EQ(display.mismatched_stretches, 0);
  // Two squeezed steps, the hand-over, and w = 2100, 4200, 6300 laying down.
  EXPECT_EQ(pump.pauses, 2 + 1 + 3);
  EXPECT_EQ(pump.slept_ms, 6 * 5);

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
  EXPECT_EQ(laid[0].at_spine, 5);
  EXPECT_EQ(laid[0].at_outer_edge, 3) << "the old left page until it is covered";
  EXPECT_EQ(laid[2].at_outer_edge, 5);

  EXPECT_TRUE(display.AtRest());
  EXPECT_EQ(display.content[0], 5);
  EXPECT_EQ(display.content[1], 6);
  EXPECT_EQ(state.current_page, 6);
}

TEST_F(PageTurnerTest, BackwardSweepNarrowsTheLeftPageTowardsTheSpine) {
  ShowSpread(6);
  turner.WipeLeftToRight(kPages);
  // x = 2100 lies before W / 2 and is drawn; 4200 only yields.
  EXPECT_EQ(display.stretch_widths, (std::vector<double>{2400}));
  EXPECT_EQ(pump.pauses, 1);
  ASSERT_TRUE(display.views.at(0).squeezed);
  EXPECT_EQ(display.views[0].at_spine, 5) << "the turned page, squeezed at the spine";
  EXPECT_EQ(display.views[0].at_outer_edge, 3) << "the new left page beneath it";
  EXPECT_TRUE(display.AtRest());
  EXPECT_EQ(display.content[0], 3);
  EXPECT_EQ(display.content[1], 4);
  EXPECT_EQ(state.current_page, 4);
}

TEST_F(PageTurnerTest, AStripWiderThanHalfThePageDrawsAtMostOneSqueezedStep) {
  settings.page_sweep_width = 3000;
  ShowSpread(4);
  turner.WipeRightToLeft(kPages);
  EXPECT_EQ(display.stretches, 1);
  turner.WipeLeftToRight(kPages);
  EXPECT_EQ(display.stretches, 1) << "x = 3000 is already past half of 4500";

  settings.page_sweep_width = 5000;  // wider than the page itself
  turner.WipeRightToLeft(kPages);
  EXPECT_EQ(display.stretches, 2);
  EXPECT_EQ(display.stretch_widths.back(), 0);
  EXPECT_EQ(display.negative_widths, 0);
  EXPECT_TRUE(display.AtRest());
  EXPECT_EQ(display.content[0], 5);
}

}  // namespace
}  // namespace vireo
