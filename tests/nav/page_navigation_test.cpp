#include "nav/page_navigation.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "nav/page_nav_mouse.h"
#include "nav/page_nav_state.h"
#include "render/fake_book_display.h"

namespace vireo {
namespace {

using test::FakeBookDisplay;

// Four pages starting at 1, 120, 250 and 380.
PageIndex FourPages() {
  PageIndex index;
  index.count = 4;
  const int32_t starts[] = {1, 120, 250, 380};
  for (int32_t p = 1; p <= 4; ++p) index.SetPageStart(p, starts[p - 1]);
  return index;
}

TEST(WhichPage, MapsPositionsToThePageBeforeTheFirstLaterStart) {
  const PageIndex index = FourPages();
  EXPECT_EQ(WhichPage(index, 0), -1);
  EXPECT_EQ(WhichPage(index, 1), 1);
  EXPECT_EQ(WhichPage(index, 119), 1);
  EXPECT_EQ(WhichPage(index, 120), 2) << "a page start belongs to the page it opens";
  EXPECT_EQ(WhichPage(index, 379), 3);
  EXPECT_EQ(WhichPage(index, 380), 0) << "on the last page";
  EXPECT_EQ(WhichPage(index, 5000), 0);
}

TEST(WhichPage, ATitlePageIsNeverTheAnswerForTextPositions) {
  PageIndex index;
  index.count = 3;  // page 1 is the title page and starts at 0
  index.SetPageStart(2, 1);
  index.SetPageStart(3, 200);
  EXPECT_EQ(WhichPage(index, 1), 2);
  EXPECT_EQ(WhichPage(index, 199), 2);
}

class FakeChooser : public PageChooser {
 public:
  std::optional<int> ChoosePage(int current_page, int page_count) override {
    ++asked;
    shown_current = current_page;
    shown_count = page_count;
    if (while_open) while_open();
    return answer;
  }
  std::optional<int> answer;
  std::function<void()> while_open;
  int asked = 0;
  int shown_current = 0;
  int shown_count = 0;
};

class GotoPageTest : public testing::Test {
 protected:
  FakeBookDisplay display{10};
  ReadingState state;
  PageNavigator navigator{display, state};
  FakeChooser chooser;
};

TEST_F(GotoPageTest, AChosenPageOpensTheSpreadThatHoldsIt) {
  state.current_page = 2;
  chooser.answer = 6;
  navigator.GotoPage(chooser, 10);
  EXPECT_EQ(chooser.shown_current, 2);
  EXPECT_EQ(chooser.shown_count, 10);
  EXPECT_EQ(display.events,
            (std::vector<std::string>{"clear 0", "plot 0 0 5", "clear 1", "plot 1 1 6"}));
  EXPECT_EQ(state.current_page, 6);

  chooser.answer = 10;  // the last page of an even count
  navigator.GotoPage(chooser, 10);
  EXPECT_EQ(display.content[0], 9);
  EXPECT_EQ(display.content[1], 10);
  EXPECT_EQ(state.current_page, 10);
}

TEST_F(GotoPageTest, ChoicesBeyondTheBookAreClampedToASpread) {
  display.page_count = 9;
  chooser.answer = 25;
  navigator.GotoPage(chooser, 9);
  EXPECT_EQ(display.content[0], 9);
  EXPECT_EQ(display.content[1], FakeBookDisplay::kBlank) << "page 10 does not exist";
  EXPECT_EQ(state.current_page, 10);

  chooser.answer = 0;
  navigator.GotoPage(chooser, 9);
  EXPECT_EQ(display.content[0], 1);
  EXPECT_EQ(display.content[1], 2);
  EXPECT_EQ(state.current_page, 2);
}

TEST_F(GotoPageTest, CancellingChangesNothing) {
  state.current_page = 4;
  chooser.answer.reset();
  navigator.GotoPage(chooser, 10);
  EXPECT_TRUE(display.events.empty());
  EXPECT_EQ(state.current_page, 4);
  EXPECT_FALSE(navigator.navigation_busy());
  navigator.GotoPage(chooser, 10);
  EXPECT_EQ(chooser.asked, 2);
}

TEST_F(GotoPageTest, WithoutPagesOrWhileTheDialogIsOpenNothingIsAsked) {
  navigator.GotoPage(chooser, 0);
  EXPECT_EQ(chooser.asked, 0);

  chooser.answer = 3;
  bool busy_while_open = false;
  chooser.while_open = [&] {
    busy_while_open = navigator.navigation_busy();
    navigator.GotoPage(chooser, 10);
  };
  navigator.GotoPage(chooser, 10);
  EXPECT_TRUE(busy_while_open);
  EXPECT_EQ(chooser.asked, 1);
  EXPECT_EQ(state.current_page, 4);
}

// Line geometry: text from 300 twips, lines of 240, ten lines per page.
PageMouseContext Lines(PageMode mode = PageMode::kDouble) {
  PageMouseContext context;
  context.mode = mode;
  context.text_top_twips = 300;
  context.line_height_twips = 240;
  context.lines_per_page = 10;
  return context;
}

PageMouseEvent Mouse(PageMouseEventKind kind, int box, PageMouseButton button, double y = 0) {
  PageMouseEvent event;
  event.kind = kind;
  event.page_box = box;
  event.button = button;
  event.y_twips = y;
  return event;
}

TEST(PageMouse, ShiftClickMarksTheLineUnderThePointerAndSpeaksItOnRelease) {
  auto down = Mouse(PageMouseEventKind::kDown, 0, PageMouseButton::kLeft, 300 + 2 * 240 + 5);
  down.shift = true;
  EXPECT_EQ(DecidePageMouse(down, Lines()),
            (PageMouseDecision{PageMouseAction::kMarkLine, 3, 780, 1010}));

  down.y_twips = 300 + 10 * 240;  // line 11 of 10
  EXPECT_EQ(DecidePageMouse(down, Lines()).action, PageMouseAction::kNone);
  down.y_twips = 300 + 9 * 240;
  EXPECT_EQ(DecidePageMouse(down, Lines()).line, 10);

  PageMouseContext marked = Lines();
  marked.marked_line = 3;
  auto move = Mouse(PageMouseEventKind::kMove, 0, PageMouseButton::kLeft, 300 + 2 * 240 + 200);
  move.shift = true;
  EXPECT_EQ(DecidePageMouse(move, marked).action, PageMouseAction::kNone) << "same line";
  move.y_twips += 100;
  EXPECT_EQ(DecidePageMouse(move, marked),
            (PageMouseDecision{PageMouseAction::kMoveMark, 4, 1020, 1250}));

  auto up = Mouse(PageMouseEventKind::kUp, 0, PageMouseButton::kLeft, 310);
  up.shift = true;
  EXPECT_EQ(DecidePageMouse(up, marked).action, PageMouseAction::kSpeakLine);
  EXPECT_EQ(DecidePageMouse(up, marked).line, 1);
}

TEST(PageNavState, SliderAndTypedPagesRoundToWholePagesWithinTheBook) {
  PageNavState state;
  state.ChoosePage(5, 40);
  state.SlideTo(2.5);
  EXPECT_EQ(state.selected_page(), 2) << "ties round to even";
  state.SlideTo(55.2);
  EXPECT_EQ(state.selected_page(), 40);
  EXPECT_FALSE(state.TypePage(""));
  EXPECT_TRUE(state.TypePage("2.6"));
  EXPECT_EQ(state.selected_page(), 3);
  EXPECT_TRUE(state.TypePage("4 0 pages"));
  EXPECT_EQ(state.selected_page(), 40);

  const PageSliderScale scale{12, 390, 40};
  EXPECT_DOUBLE_EQ(scale.PageAt(12), 1);
  EXPECT_DOUBLE_EQ(scale.PageAt(402), 40);
  EXPECT_DOUBLE_EQ(scale.PageAt(scale.XOf(17)), 17);
}

}  // namespace
}  // namespace vireo
