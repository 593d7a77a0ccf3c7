#include "render/title_page.h"

#include <gtest/gtest.h>

#include "fake_surface.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

using test::FakeSurface;

constexpr uint32_t kInk = 0x202020;

const FakeSurface::Run* FindRun(const FakeSurface& surface, std::string_view text) {
  for (const auto& run : surface.runs) {
    if (run.text == text) return &run;
  }
  return nullptr;
}

// The run that drew text; a failure and an empty run when there is none.
FakeSurface::Run RunOf(const FakeSurface& surface, std::string_view text) {
  if (const auto* run = FindRun(surface, text)) return *run;
  ADD_FAILURE() << "not drawn: " << text;
  return {};
}

// Boxes of 6000 x 9000 twips; characters are 100 twips wide (bold 120) and
// lines 240 high.
class TitlePageTest : public ::testing::Test {
 protected:
  ~TitlePageTest() override { SetLanguage({}); }
  FakeSurface left;
  FakeSurface right;
};

TEST_F(TitlePageTest, SinglePageShowsWelcomeAndHintsOnTheOnePage) {
  const auto placement = DrawTitlePage(left, left, kInk, 1500, 1200);
  const auto welcome = RunOf(left, "Welcome to Vireo!");
  EXPECT_EQ(welcome.x, 1980);  // (6000 - 17 bold letters of 120) / 2
  EXPECT_EQ(welcome.y, 300);
  EXPECT_TRUE(welcome.bold);
  EXPECT_EQ(welcome.font_size, 12);

  // 4900 twips is more than 0.8 of 6000: the credit line drops to 8 points.
  const auto credit = RunOf(left, "Brought to you by Marrowind Software, New Zealand");
  EXPECT_EQ(credit.font_size, 8);
  EXPECT_EQ(credit.x, 550);
  EXPECT_EQ(credit.y, 300 + 3 * 240);
  EXPECT_FALSE(credit.bold);
  EXPECT_EQ(credit.colour, kInk);
  EXPECT_EQ(RunOf(left, "This is version " + AppVersion()).font_size, 10);
  RunOf(left, "This program is updated frequently, so please");
  RunOf(left, "check the Marrowind home page often:");
  EXPECT_EQ(RunOf(left, kMakerHomePage).colour, 0xFF0000u);

  // The hints start at half the page, from the left edge.
  const auto hints = RunOf(left, "Hints:");
  EXPECT_EQ(hints.x, 0);
  EXPECT_EQ(hints.y, 4500);
  EXPECT_TRUE(hints.bold);
  const auto last_hint = RunOf(left, "Press 1 and 2 to toggle page mode");
  EXPECT_EQ(last_hint.y, 4500 + 7 * 240);
  EXPECT_FALSE(last_hint.bold);
  EXPECT_EQ(last_hint.colour, kInk);

  // Two empty lines, then the list 300 twips from the right edge, its caption
  // 100 twips to its left, and the folder line 50 twips below it.
  ASSERT_TRUE(placement.has_value());
  EXPECT_EQ(placement->list, (TwipsRect{4200, 6900, 1500, 1200}));
  EXPECT_EQ(placement->caption_right, 4100);
  EXPECT_EQ(placement->caption_top, 6900);
  const std::string folder_line = "See the Languages folder for translation files";
  const auto below = RunOf(left, folder_line);
  EXPECT_EQ(below.y, 6900 + 1200 + 50);
  EXPECT_EQ(below.x, (6000 - 100.0 * folder_line.size()) / 2);
}

TEST_F(TitlePageTest, DoublePageShowsWelcomeOnTheRightAndTranslatedHintsOnTheLeft) {
  SetLanguage({"Hints||Pistas", "Click LOAD to load a file||Pulse LOAD para cargar",
               "Welcome to Vireo!||Bienvenido"});
  left.DrawText("previous page");
  DrawTitlePage(right, left, kInk, 1500, 1200);
  EXPECT_EQ(right.runs.front().text, "Welcome to Vireo!") << "the welcome is not translated";
  EXPECT_EQ(FindRun(right, "Pistas:"), nullptr);
  EXPECT_EQ(left.clears, 1);
  EXPECT_EQ(left.runs.front().text, "Pistas:");
  EXPECT_EQ(left.runs.front().colour, kInk);
  RunOf(left, "Pulse LOAD para cargar");
  EXPECT_EQ(FindRun(left, "Welcome to Vireo!"), nullptr);
}

}  // namespace
}  // namespace vireo
