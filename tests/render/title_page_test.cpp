#include "render/title_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_surface.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

using test::FakeSurface;
using ::testing::Contains;
using ::testing::Not;

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

}  // namespace
}  // namespace vireo
