#include "render/page_plotter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "fake_pump.h"
#include "fake_surface.h"
#include "layout/font_metrics.h"
#include "prefs/reader_preferences.h"
#include "prefs/settings_get_set.h"
#include "render/page_boxes.h"
#include "render/print_page.h"

namespace vireo {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Eight fixed-width page boxes of 6000 x 9000 twips, a book of 9 pages, the calls in order.
class FakePageBoxes : public PageBoxes {
 public:
  Surface& Box(int box) override { return boxes.at(static_cast<size_t>(box)); }
  void SetBoxBackColour(int, uint32_t) override {}
  void SetBoxTexture(int box, std::optional<int> slot) override {
    boxes.at(static_cast<size_t>(box)).Clear();
    calls.push_back("texture " + std::to_string(box) + " " + std::to_string(slot.value_or(-1)));
  }
  bool BookLoaded() const override { return book_loaded; }
  int PageCount() const override { return 9; }
  PageContent Page(int page) const override {
    return {"Text of page " + std::to_string(page), false, false, false};
  }
  std::string SearchTerm() const override { return {}; }
  void ShowCover(int box, int page) override {
    calls.push_back("cover " + std::to_string(box) + " " + std::to_string(page));
  }
  void UpdateSearchLabel() override { calls.push_back("search label"); }
  TwipsSize LanguageListSize() const override { return {1500, 1200}; }
  void PlaceLanguageList(const LanguageListPlacement& where) override { placement = where; }

  std::array<test::FakeSurface, kBoxCount> boxes;
  std::vector<std::string> calls;
  bool book_loaded = true;
  std::optional<LanguageListPlacement> placement;
};

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

  FakePageBoxes boxes;
  ReaderPreferences prefs;
  test::RecordingPump pump;
  clsPrintPage composer{pump};
  clsFontMetrics metrics;
  PagePlotter plotter{boxes, prefs, composer, metrics};
};

TEST_F(PagePlotterTest, APageIsComposedOnItsPaperWithItsNumberCentredAtTheFoot) {
  plotter.PlotOnPage(1, 5, 7);
  EXPECT_THAT(boxes.calls, ElementsAre("texture 5 2", "cover 5 7", "search label"));

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
  for (int page : {0, 10, -2}) plotter.PlotOnPage(0, 4, page);
  EXPECT_THAT(boxes.calls, IsEmpty());
  EXPECT_THAT(boxes.boxes[4].RunTexts(), ElementsAre("old page"));
  EXPECT_THAT(boxes.boxes[0].RunTexts(), IsEmpty());
  EXPECT_FALSE(boxes.placement.has_value());

  boxes.book_loaded = false;
  plotter.PlotOnPage(1, 6, 3);
  EXPECT_THAT(boxes.boxes[6].RunTexts(), IsEmpty());
  EXPECT_THAT(boxes.boxes[1].RunTexts(), Contains("Welcome to Vireo!"));
  EXPECT_THAT(boxes.boxes[0].RunTexts(), Contains("Hints:"));
  EXPECT_TRUE(boxes.placement.has_value());
}

}  // namespace
}  // namespace vireo
