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

namespace vireo {
namespace {

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

}  // namespace
}  // namespace vireo
