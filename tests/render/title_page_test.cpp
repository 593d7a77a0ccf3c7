#include "render/title_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_surface.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

using test::FakeSurface;

constexpr uint32_t kInk = 0x202020;
constexpr std::string_view kCredit = "Brought to you by Marrowind Software, New Zealand";

const FakeSurface::Run* FindRun(const FakeSurface& surface, std::string_view text) {
  for (const auto& run : surface.runs) {
    if (run.text == text) return &run;
  }
  return nullptr;
}

// Characters are 100 twips wide and lines 240 high on these boxes.
class TitlePageTest : public ::testing::Test {
 protected:
  ~TitlePageTest() override { SetLanguage({}); }
  FakeSurface left;
  FakeSurface right;
};

TEST_F(TitlePageTest, SinglePageShowsWelcomeAndHintsOnTheOnePage) {
  const auto placement = DrawTitlePage(left, left, kInk, 1500, 1200);

  const auto* welcome = FindRun(left, "Welcome to Vireo!");
  ASSERT_NE(welcome, nullptr);
  EXPECT_EQ(welcome->x, 1980);  // (6000 - 17 bold letters of 120) / 2
  EXPECT_EQ(welcome->y, 300);
  EXPECT_TRUE(welcome->bold);
  EXPECT_EQ(welcome->font_size, 12);

  // 4900 twips is more than 0.8 of 6000: the credit line drops to 8 points.
  const auto* credit = FindRun(left, kCredit);
  ASSERT_NE(credit, nullptr);
  EXPECT_EQ(credit->font_size, 8);
  EXPECT_EQ(credit->x, 550);
  EXPECT_EQ(credit->y, 300 + 3 * 240);
  EXPECT_FALSE(credit->bold);
  EXPECT_EQ(credit->colour, kInk);

  const auto* version = FindRun(left, "This is version " + AppVersion());
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(version->font_size, 10);
  ASSERT_NE(FindRun(left, "This program is updated frequently, so please"), nullptr);
  ASSERT_NE(FindRun(left, "check the Marrowind home page often:"), nullptr);
  const auto* home = FindRun(left, kMakerHomePage);
  ASSERT_NE(home, nullptr);
  EXPECT_EQ(home->colour, 0xFF0000u);

  // The hints start at half the page, from the left edge.
  const auto* hints = FindRun(left, "Hints:");
  ASSERT_NE(hints, nullptr);
  EXPECT_EQ(hints->x, 0);
  EXPECT_EQ(hints->y, 4500);
  EXPECT_TRUE(hints->bold);
  const auto* last_hint = FindRun(left, "Press 1 and 2 to toggle page mode");
  ASSERT_NE(last_hint, nullptr);
  EXPECT_EQ(last_hint->y, 4500 + 7 * 240);
  EXPECT_FALSE(last_hint->bold);
  EXPECT_EQ(last_hint->colour, kInk);

  // Two empty lines, then the list 300 twips from the right edge.
  ASSERT_TRUE(placement.has_value());
  EXPECT_EQ(placement->list, (TwipsRect{4200, 6900, 1500, 1200}));
  EXPECT_EQ(placement->caption_right, 4100);
  EXPECT_EQ(placement->caption_top, 6900);
  const std::string folder_line = "See the Languages folder for translation files";
  const auto* below = FindRun(left, folder_line);
  ASSERT_NE(below, nullptr);
  EXPECT_EQ(below->y, 6900 + 1200 + 50);
  EXPECT_EQ(below->x, (6000 - 100.0 * folder_line.size()) / 2);
}

TEST_F(TitlePageTest, DoublePageShowsWelcomeOnTheRightAndHintsOnTheLeft) {
  left.DrawText("previous page");
  DrawTitlePage(right, left, kInk, 1500, 1200);
  EXPECT_EQ(right.runs.front().text, "Welcome to Vireo!");
  EXPECT_EQ(FindRun(right, "Hints:"), nullptr);
  EXPECT_EQ(left.clears, 1);
  EXPECT_EQ(left.runs.front().text, "Hints:");
  EXPECT_EQ(left.runs.front().colour, kInk);
  EXPECT_EQ(FindRun(left, "Welcome to Vireo!"), nullptr);
}

TEST_F(TitlePageTest, HintsAreTranslatedAndTheWelcomeIsNot) {
  SetLanguage({"Hints||Pistas", "Click LOAD to load a file||Pulse LOAD para cargar",
               "Welcome to Vireo!||Bienvenido"});
  DrawTitlePage(left, left, kInk, 1500, 1200);
  EXPECT_NE(FindRun(left, "Pistas:"), nullptr);
  EXPECT_NE(FindRun(left, "Pulse LOAD para cargar"), nullptr);
  EXPECT_NE(FindRun(left, "Welcome to Vireo!"), nullptr);
}

}  // namespace
}  // namespace vireo
