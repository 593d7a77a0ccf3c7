#include "render/page_plotter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "fake_pump.h"
#include "fake_surface.h"
#include "layout/font_metrics.h"
#include "prefs/reader_preferences.h"
#include "prefs/settings_get_set.h"
#include "render/book_pages.h"
#include "render/fake_page_buffers.h"
#include "render/print_page.h"
#include "render/title_page.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

using test::FakeSurface;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

// A book of 9 pages, "Text of page N" each.
BookPages NinePages() {
  BookPages book;
  for (int page = 1; page <= 9; ++page) {
    book.index.SetPageStart(page, static_cast<int32_t>(book.text.size()) + 1);
    book.text += "Text of page " + std::to_string(page);
  }
  book.index.count = 9;
  book.loaded = true;
  return book;
}

class PagePlotterTest : public ::testing::Test {
 protected:
  PagePlotterTest() {
    ResetGlobalSettings();
    prefs.ink_colour = 0x101010;
    prefs.texture_num = 2;
    metrics.MakeArrays(boxes.boxes[0]);
    for (auto& box : boxes.boxes) box.bold = box.italic = false;
  }
  ~PagePlotterTest() override { ResetGlobalSettings(); }

  test::FakePageBuffers boxes;
  BookPages book = NinePages();
  ReaderPreferences prefs;
  test::RecordingPump pump;
  clsPrintPage composer{pump};
  clsFontMetrics metrics;
  PagePlotter plotter{boxes, book, prefs, composer, metrics};
};

TEST_F(PagePlotterTest, APageIsComposedOnItsPaperWithItsNumberCentredAtTheFoot) {
  plotter.PlotOnPage(PageSide::kRight, 5, 7);
  EXPECT_THAT(boxes.calls, ElementsAre("texture 5 2", "refresh 5"));

  const auto& box = boxes.boxes[5];
  ASSERT_THAT(box.RunTexts(), ElementsAre("Text of page 7", "7"));
  // Text at the default borders: x = 400, first line at y = 300.
  EXPECT_EQ(box.runs[0].x, 400);
  EXPECT_EQ(box.runs[0].y, 300);
  EXPECT_EQ(box.runs[0].font_size, 10);
  // The number: 8 points, (6000 - 100) / 2 across, 9000 - (240 + 45) down.
  const auto& number = box.runs[1];
  EXPECT_EQ(number.font_size, 8);
  EXPECT_EQ(number.x, 2950);
  EXPECT_EQ(number.y, 8715);
  EXPECT_EQ(number.colour, 0x101010u);
  EXPECT_FALSE(number.bold);
  EXPECT_EQ(plotter.text_area().lines_per_page, 32) << "from Page(0): 8150 / 256 = 31.8";
}

TEST_F(PagePlotterTest, PagesOutsideTheBookDrawNothingAndWithoutABookTheTitlePageIsDrawn) {
  boxes.boxes[4].DrawText("old page");
  for (int page : {0, 10, -2}) plotter.PlotOnPage(PageSide::kLeft, 4, page);
  EXPECT_THAT(boxes.calls, Not(Contains(testing::StartsWith("texture"))));
  EXPECT_THAT(boxes.boxes[4].RunTexts(), ElementsAre("old page"));
  EXPECT_THAT(boxes.boxes[0].RunTexts(), IsEmpty());
  EXPECT_FALSE(boxes.placement.has_value());

  // What the title page shows is the reader logic's and the title page's test.
  book.loaded = false;
  plotter.PlotOnPage(PageSide::kRight, 6, 3);
  EXPECT_THAT(boxes.boxes[6].RunTexts(), IsEmpty());
  EXPECT_TRUE(boxes.placement.has_value()) << "the title page was drawn";
}

constexpr uint32_t kInk = 0x202020;

// The run that drew text; a failure and an empty run when there is none.
FakeSurface::Run RunOf(const FakeSurface& surface, std::string_view text) {
  for (const auto& run : surface.runs) {
    if (run.text == text) return run;
  }
  ADD_FAILURE() << "not drawn: " << text;
  return {};
}

// Boxes of 6000 x 9000 twips; characters 100 twips wide (bold 120), lines 240 high.
class TitlePageTest : public ::testing::Test {
 protected:
  ~TitlePageTest() override { SetLanguage({}); }
  FakeSurface left;
  FakeSurface right;
};

TEST_F(TitlePageTest, SinglePageShowsWelcomeAndHintsOnTheOnePage) {
  const auto placement = DrawTitlePage(left, left, kInk, 1500, 1200);
  const std::string credit = "Brought to you by Marrowind Software, New Zealand";
  struct Expected {
    std::string text;
    double x, y, points;
    bool bold;
  };
  const Expected expected[] = {
      // Centred: (6000 - 17 bold letters of 120) / 2.
      {"Welcome to Vireo!", 1980, 300, 12, true},
      // 4900 twips is more than 0.8 of 6000: the credit line drops to 8 points.
      {credit, 550, 300 + 3 * 240, 8, false},
      // The hints start at half the page, from the left edge.
      {"Hints:", 0, 4500, 10, true},
      // Two empty lines, the list, then this line 50 twips below it.
      {"See the Languages folder for translation files", 700, 6900 + 1200 + 50, 10, false},
  };
  for (const Expected& e : expected) {
    SCOPED_TRACE(e.text);
    const auto run = RunOf(left, e.text);
    EXPECT_EQ(run.x, e.x);
    EXPECT_EQ(run.y, e.y);
    EXPECT_EQ(run.font_size, e.points);
    EXPECT_EQ(run.bold, e.bold);
  }
  EXPECT_EQ(RunOf(left, kMakerHomePage).colour, 0xFF0000u);
  EXPECT_EQ(RunOf(left, credit).colour, kInk);

  // The list 300 twips from the right edge.
  ASSERT_TRUE(placement.has_value());
  EXPECT_EQ(placement->list, (TwipsRect{4200, 6900, 1500, 1200}));
}

TEST_F(TitlePageTest, DoublePageShowsWelcomeOnTheRightAndTranslatedHintsOnTheLeft) {
  SetLanguage({"Hints||Pistas", "Click LOAD to load a file||Pulse LOAD para cargar",
               "Welcome to Vireo!||Bienvenido"});
  left.DrawText("previous page");
  DrawTitlePage(right, left, kInk, 1500, 1200);
  EXPECT_EQ(right.runs.front().text, "Welcome to Vireo!") << "the welcome is not translated";
  EXPECT_THAT(right.RunTexts(), Not(Contains("Pistas:")));
  EXPECT_EQ(left.clears, 1);
  EXPECT_EQ(left.runs.front().text, "Pistas:");
  RunOf(left, "Pulse LOAD para cargar");
  EXPECT_THAT(left.RunTexts(), Not(Contains("Welcome to Vireo!")));
}

TEST_F(PagePlotterTest, OnlyTheStylesTheBookUsesAreMeasuredAndABookWithMoreMeasuresThem) {
  book.SetText(book.text);
  plotter.PlotOnPage(PageSide::kLeft, 0, 1);
  const double plain = boxes.boxes[0].char_width;
  EXPECT_EQ(metrics.Width(false, false, 'a'), plain);
  for (const auto& [bold, italic] : {std::pair{true, false}, {false, true}, {true, true}}) {
    EXPECT_EQ(metrics.Width(bold, italic, 'a'), 0) << bold << italic;
  }

  book.SetText(book.text + "\x82sloping\x83");
  plotter.PlotOnPage(PageSide::kLeft, 0, 1);
  EXPECT_EQ(metrics.Width(false, true, 'a'), plain + boxes.boxes[0].italic_extra);
  EXPECT_EQ(metrics.Width(true, false, 'a'), 0);
  EXPECT_EQ(metrics.Width(true, true, 'a'), 0);
}

}  // namespace
}  // namespace vireo
