#include "render/book_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_surface.h"
#include "prefs/settings_get_set.h"
#include "test_support.h"

namespace vireo {
namespace {

using ::testing::ElementsAre;

TEST(BookViewLayout, SinglePageWithTheBarShown) {
  BookViewLayout layout;
  DrawSinglePageBook({9500, 6000, ControlBar::kShown, 9000, 5400}, layout);
  // 800 twips kept for the bar.
  EXPECT_EQ(layout.page_frames[0], (TwipsRect{155, kPageFrameTop, 9115, 5200}));
  EXPECT_EQ(layout.page_width, 9115);
  EXPECT_FALSE(layout.right_frame_visible);
  EXPECT_THAT(layout.page_visible,
              ElementsAre(true, false, false, false, false, false, false, false));
  EXPECT_FALSE(layout.frame1.has_value());  // the bar stays where it is
  // The bottom line runs 15 twips above the bar; the outer edges stop 75 twips above it.
  EXPECT_EQ(layout.lines.bottom, (TwipsLine{75, 5385, 9315, 5385}));
  EXPECT_EQ(layout.lines.hard_right.y2, 5310);
  EXPECT_EQ(layout.lines.left.y2, 5385);
}

TEST(BookViewLayout, DoublePageWithTheBarHidden) {
  BookViewLayout layout;
  DrawDoublePageBook({12000, 8000, ControlBar::kHidden, 2000, 0}, layout);
  // The left page ends at W / 2 - 90, the right one starts 45 twips later.
  EXPECT_EQ(layout.page_frames[0], (TwipsRect{185, kPageFrameTop, 5725, 7775}));
  EXPECT_EQ(layout.page_frames[1], (TwipsRect{5955, kPageFrameTop, 5725, 7775}));
  EXPECT_TRUE(layout.right_frame_visible);
  EXPECT_THAT(layout.page_visible,
              ElementsAre(true, true, false, false, false, false, false, false));
  // Frame1 centred 45 twips left of the middle, 50 below the pages.
  EXPECT_EQ(layout.frame1, (TwipsPoint{4955, kPageFrameTop + 7775 + 50}));
  // Without the bar the bottom line runs 50 twips above the foot; the centre line is in the gap.
  EXPECT_EQ(layout.lines.centre, (TwipsLine{5930, kEdgeLinesTopY, 5930, 7950}));
}

// The default borders (400, 400, 300) are seen in the page plotter's test.
TEST(PageBorders, LinesPerPageIsRoundedAndBordersComeFromTheSettings) {
  ResetGlobalSettings();
  test::FakeSurface page;
  PageTextArea area;
  page.width = 6000;
  page.line_height = 240;          // line gap 16, pitch 256
  page.height = 850 + 10.6 * 256;  // 10.6 pitches of text
  SetPageBorders(page, 12, area);
  EXPECT_EQ(page.font_size, 12);
  EXPECT_EQ(area.line_pitch, 256);
  EXPECT_EQ(area.lines_per_page, 11);  // rounded, not truncated
  page.height = 850 + 10.4 * 256;
  SetPageBorders(page, 12, area);
  EXPECT_EQ(area.lines_per_page, 10);

  sset("LeftBorder", 1000);
  sset("RightBorder", 500);
  sset("TopBorder", 200);
  sset("BottomBorder", 800);
  page.height = 9000;
  SetPageBorders(page, 10, area);
  EXPECT_EQ(area.text_width, 4500);
  EXPECT_EQ(area.text_height, 8000);
  ResetGlobalSettings();
}

TEST(Textures, OnlyThePaperFilesPresentFillTheirSlots) {
  test::TempFolder folder;
  test::WriteFile(folder.File("paper1.jpg"), "jpeg");
  test::WriteFile(folder.File("paper3.jpg"), "jpeg");
  test::WriteFile(folder.File("paper5.jpg"), "jpeg");
  EXPECT_THAT(LoadTextures(folder.str()), ElementsAre(TextureFile{0, folder.File("paper1.jpg")},
                                                      TextureFile{2, folder.File("paper3.jpg")}));
}

}  // namespace
}  // namespace vireo
