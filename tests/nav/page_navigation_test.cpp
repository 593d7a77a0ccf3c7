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

TEST(WhichPage, MapsPositionsToThePageBeforeTheFirstLaterStart) {
  PageIndex index;
  index.count = 4;
  const int32_t starts[] = {1, 120, 250, 380};
  for (int32_t p = 1; p <= 4; ++p) index.SetPageStart(p, starts[p - 1]);
  EXPECT_EQ(WhichPage(index, 0), -1);
  EXPECT_EQ(WhichPage(index, 1), 1);
  EXPECT_EQ(WhichPage(index, 119), 1);
  EXPECT_EQ(WhichPage(index, 120), 2) << "a page start belongs to the page it opens";
  EXPECT_EQ(WhichPage(index, 380), 0) << "on the last page";
  EXPECT_EQ(WhichPage(index, 5000), 0);

  index.count = 3;  // page 1 is the title page and starts at 0
  index.SetPageStart(1, 0);
  index.SetPageStart(2, 1);
  index.SetPageStart(3, 200);
  EXPECT_EQ(WhichPage(index, 1), 2) << "a title page is never the answer for text";
}

// Answers with `answer`; while_open runs while the dialog would be open.
class FakeChooser : public PageChooser {
 public:
  std::optional<int> ChoosePage(int current_page, int page_count) override {
    asked.push_back({current_page, page_count});
    if (while_open) while_open();
    return answer;
  }
  std::optional<int> answer;
  std::function<void()> while_open;
  std::vector<std::pair<int, int>> asked;  // (current page, page count) per call
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
  EXPECT_EQ(chooser.asked, (std::vector<std::pair<int, int>>{{2, 10}}));
  EXPECT_EQ(display.events,
            (std::vector<std::string>{"clear 0", "plot 0 0 5", "clear 1", "plot 1 1 6"}));

  struct Case {
    int answer, page_count, left, right, current;
  };
  for (const Case& c : {Case{10, 10, 9, 10, 10}, Case{25, 9, 9, FakeBookDisplay::kBlank, 10},
                        Case{0, 9, 1, 2, 2}}) {
    SCOPED_TRACE("page " + std::to_string(c.answer) + " of " + std::to_string(c.page_count));
    display.page_count = c.page_count;
    chooser.answer = c.answer;
    navigator.GotoPage(chooser, c.page_count);
    EXPECT_EQ(display.content[0], c.left);
    EXPECT_EQ(display.content[1], c.right);
    EXPECT_EQ(state.current_page, c.current);
  }
}

TEST_F(GotoPageTest, NoDialogWithoutPagesOrInsideAnOpenOneAndACancelChangesNothing) {
  state.current_page = 8;
  navigator.GotoPage(chooser, 0);
  EXPECT_TRUE(chooser.asked.empty()) << "no pages";
  navigator.GotoPage(chooser, 10);
  EXPECT_TRUE(display.events.empty()) << "cancelled";
  EXPECT_EQ(state.current_page, 8);

  chooser.answer = 3;
  chooser.while_open = [&] { navigator.GotoPage(chooser, 10); };
  navigator.GotoPage(chooser, 10);
  EXPECT_EQ(chooser.asked.size(), 2u) << "asked again after the cancel, not from inside";
  EXPECT_EQ(state.current_page, 4) << "the outer jump to page 3 alone";
}

TEST(PageMouse, ShiftClickMarksTheLineUnderThePointerAndSpeaksItOnRelease) {
  // Text from 300 twips, lines of 240, ten lines per page.
  PageMouseContext lines;
  lines.text_top_twips = 300;
  lines.line_height_twips = 240;
  lines.lines_per_page = 10;
  const auto shift_left = [](PageMouseEventKind kind, double y) {
    return PageMouseEvent{kind, kLeftPageBox, PageMouseButton::kLeft, true, false, y};
  };

  auto down = shift_left(PageMouseEventKind::kDown, 300 + 2 * 240 + 5);
  EXPECT_EQ(DecidePageMouse(down, lines),
            (PageMouseDecision{PageMouseAction::kMarkLine, 3, 780, 1010}));
  down.y_twips = 300 + 10 * 240;  // line 11 of 10
  EXPECT_EQ(DecidePageMouse(down, lines).action, PageMouseAction::kNone);

  PageMouseContext marked = lines;
  marked.marked_line = 3;
  auto move = shift_left(PageMouseEventKind::kMove, 300 + 2 * 240 + 200);
  EXPECT_EQ(DecidePageMouse(move, marked).action, PageMouseAction::kNone) << "same line";
  move.y_twips += 100;
  EXPECT_EQ(DecidePageMouse(move, marked),
            (PageMouseDecision{PageMouseAction::kMoveMark, 4, 1020, 1250}));

  const auto up = shift_left(PageMouseEventKind::kUp, 310);
  EXPECT_EQ(DecidePageMouse(up, marked),
            (PageMouseDecision{PageMouseAction::kSpeakLine, 1, 300, 530}));
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
