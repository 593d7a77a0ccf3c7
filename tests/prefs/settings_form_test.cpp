// The settings dialog's decisions without its controls; the dialog itself is
// driven on the real window in tests/app/page_setup_window_test.cpp.

#include "prefs/settings_form.h"

#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "prefs/settings_get_set.h"

namespace vireo {
namespace {

class SettingsFormTest : public testing::Test {
 protected:
  void SetUp() override { ResetGlobalSettings(); }
  void TearDown() override { ResetGlobalSettings(); }

  ReaderPreferences prefs;
  SystemColours system{0xE0E8F0, 0x202020};
  test::FakeUser user;
};

TEST_F(SettingsFormTest, ScrollBarsEditOneByteAndDefaultsAreTheSystemColours) {
  prefs.highlight_colour = 0x112233;
  SettingsForm form(prefs, system);
  form.ChooseColour(PageColour::kHighlight);
  EXPECT_EQ(form.ScrollBars(), (ColourComponents{0x33, 0x22, 0x11})) << "red is the low byte";
  form.SetColour(ColourComponent::kGreen, 300);
  form.SetColour(ColourComponent::kBlue, -4);
  EXPECT_EQ(form.Colour(PageColour::kHighlight), 0x00FF33u);
  form.instant = true;
  form.Defaults();
  EXPECT_EQ(form.Colour(PageColour::kPaper), 0xE0E8F0u) << "not white";
  EXPECT_EQ(form.Colour(PageColour::kInk), 0x202020u) << "not black";
  EXPECT_FALSE(form.instant);
}

TEST_F(SettingsFormTest, ARejectedBorderLeavesTheColoursAppliedAndStoresNothing) {
  SettingsForm form(prefs, system);
  form.ChooseColour(PageColour::kPaper);
  form.SetColour(ColourComponent::kRed, 0);
  form.instant = true;
  form.borders.top = "abc";  // not a number: 0
  form.sweep_width = "900";
  const SettingsOutcome outcome = form.OK(prefs, user);
  EXPECT_FALSE(outcome.closed);
  EXPECT_EQ(user.messages, std::vector<std::string>{"Top border must be between 100 and 1000"});
  EXPECT_EQ(prefs.paper_colour, 0xFFFF00u);
  EXPECT_TRUE(prefs.instant_page_turn);
  EXPECT_EQ(prefs.page_sweep_width, 2100);
  EXPECT_TRUE(sget("TopBorder", "none").ToText() == "none");
  EXPECT_TRUE(sget("InstantPageTurn", "none").ToText() == "none");
}

TEST_F(SettingsFormTest, ValidBordersAreStoredWithTheTurnAndTextureKeys) {
  prefs.texture_num = -1;
  SettingsForm form(prefs, system, {false, true, false, true});
  form.SetTextured(true);
  EXPECT_EQ(form.TextureNum(), 1) << "the first texture beside the program";
  form.SetTexture(2);
  EXPECT_EQ(form.TextureNum(), 1) << "no picture in slot 2";
  form.SetTexture(3);
  form.SetTextured(false);
  form.SetTextured(true);
  form.sweep_width = " 1500 twips";
  EXPECT_FALSE(form.OK(prefs, user).borders_changed) << "the defaults as they were";
  form.borders.left = "650.5";
  const SettingsOutcome outcome = form.OK(prefs, user);
  EXPECT_TRUE(outcome.closed);
  EXPECT_TRUE(outcome.borders_changed);
  EXPECT_EQ(sget("LeftBorder", 0).ToNumber(), 650.5);
  EXPECT_EQ(sget("BottomBorder", 0).ToNumber(), 550);
  EXPECT_EQ(sget("PageSweepWidth", 0).ToNumber(), 1500);
  EXPECT_EQ(prefs.page_sweep_width, 1500);
  EXPECT_EQ(sget("TextureNum", 0).ToNumber(), 3);
  EXPECT_EQ(sget("InstantPageTurn", true).ToText(), "False");
  EXPECT_TRUE(user.messages.empty());
}

}  // namespace
}  // namespace vireo
