// The font dialog's decisions through a fake list of installed fonts; the
// dialog itself is driven in tests/app/font_selection_window_test.cpp.

#include "prefs/font_choice.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "prefs/settings_get_set.h"

namespace vireo {
namespace {

class FakeFonts : public FontSource {
 public:
  std::vector<std::string> InstalledFonts() const override { return names; }
  bool Usable(const std::string& name) const override {
    return std::find(names.begin(), names.end(), name) != names.end();
  }
  std::vector<std::string> names;
};

class FontChoiceTest : public testing::Test {
 protected:
  void SetUp() override { ResetGlobalSettings(); }
  void TearDown() override { ResetGlobalSettings(); }
  FakeFonts fonts;
};

TEST(RecommendedFonts, WholeNamesExactlyAndPartsAnywhereInAnyCase) {
  const struct {
    const char* name;
    bool recommended;
  } cases[] = {
      {"Times New Roman", true}, {"times new roman", false}, {"Arial Black", false},
      {"my georgia pro", true},  {"Goudy Sans", true},       {"Liberation Serif", false},
  };
  for (const auto& c : cases) EXPECT_EQ(IsRecommendedFont(c.name), c.recommended) << c.name;
}

TEST_F(FontChoiceTest, TheRecommendedListIsScannedOnceAndKeptInTheStore) {
  fonts.names = {"Verdana", "DejaVu Sans", "Georgia", "Arial Narrow"};
  FontChoice choice(fonts, "Georgia");
  EXPECT_TRUE(choice.NeedsScan());
  EXPECT_EQ(choice.FontList(), (std::vector<std::string>{"Verdana", "Georgia"}));
  EXPECT_EQ(choice.selected(), "Georgia");
  EXPECT_EQ(sget("Fonts", 0).ToLong(), 2);
  EXPECT_EQ(sget("Font2", "").ToText(), "Georgia");
  EXPECT_FALSE(FontChoice(fonts, "Georgia").NeedsScan());

  fonts.names = {"DejaVu Sans"};
  choice.Rescan();
  EXPECT_TRUE(choice.FontList().empty());
  EXPECT_EQ(sget("Fonts", 9).ToLong(), 0) << "so the next opening scans again";
  EXPECT_FALSE(sget("Font1", "").ToText().size()) << "the old names are erased";
}

// That Cancel stores nothing is the dialog's test.
TEST_F(FontChoiceTest, ThePreviewNamesAMissingOrUnusableChoiceAndShowAllConfirmedIsKept) {
  fonts.names = {"Verdana"};
  FontChoice choice(fonts, "Nowhere Sans");
  EXPECT_EQ(choice.Preview().text, "Invalid font");
  choice.FontList();
  EXPECT_FALSE(choice.selected()) << "the current font is not in the list";
  EXPECT_EQ(choice.Preview().text, "No font selected");
  EXPECT_EQ(choice.Preview().font, "Times New Roman");
  EXPECT_EQ(choice.OK(), "");
  choice.Select("Verdana");
  EXPECT_EQ(choice.Preview().font, "Verdana");

  fonts.names = {"Verdana", "DejaVu Sans"};
  choice.SetShowAll(true);
  EXPECT_EQ(choice.FontList(), fonts.names);
  choice.Select("DejaVu Sans");
  EXPECT_EQ(choice.OK(), "DejaVu Sans");
  EXPECT_TRUE(FontChoice(fonts, "").show_all()) << "where the next opening starts";
}

}  // namespace
}  // namespace vireo
