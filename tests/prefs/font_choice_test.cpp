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
      {"Times New Roman", true},   {"times new roman", false}, {"Arial", true},
      {"Arial Black", false},      {"Garamond", true},         {"Garamond Premier", false},
      {"Comic Sans MS", true},     {"my georgia pro", true},   {"Trebuchet MS", true},
      {"Bookman Old Style", true}, {"Goudy Sans", true},       {"Atlantea", true},
      {"Liberation Serif", false}, {"Verdana", true},          {"Tahoma Bold", false},
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

  fonts.names.push_back("Comic Sans MS");
  FontChoice later(fonts, "Georgia");
  EXPECT_FALSE(later.NeedsScan());
  EXPECT_EQ(later.FontList().size(), 2u) << "the stored list, not a new scan";
  later.Rescan();
  EXPECT_EQ(later.FontList(), (std::vector<std::string>{"Verdana", "Georgia", "Comic Sans MS"}));

  fonts.names = {"DejaVu Sans"};
  later.Rescan();
  EXPECT_TRUE(later.FontList().empty());
  EXPECT_EQ(sget("Fonts", 9).ToLong(), 0) << "so the next opening scans again";
  EXPECT_FALSE(sget("Font1", "").ToText().size()) << "the old names are erased";
  EXPECT_FALSE(later.EmptyListNotice({}).empty());
}

TEST_F(FontChoiceTest, ShowAllIsStoredOnlyByOK) {
  fonts.names = {"Verdana", "DejaVu Sans"};
  FontChoice cancelled(fonts, "DejaVu Sans");
  cancelled.SetShowAll(true);
  EXPECT_EQ(cancelled.FontList(), fonts.names);
  EXPECT_EQ(cancelled.selected(), "DejaVu Sans");
  EXPECT_FALSE(sget("ShowAllFonts", false).ToBoolean()) << "Cancel stores nothing";

  FontChoice confirmed(fonts, "DejaVu Sans");
  confirmed.SetShowAll(true);
  confirmed.FontList();
  EXPECT_EQ(confirmed.OK(), "DejaVu Sans");
  EXPECT_TRUE(sget("ShowAllFonts", false).ToBoolean());
  EXPECT_TRUE(FontChoice(fonts, "").show_all()) << "the next opening starts with all fonts";
}

TEST_F(FontChoiceTest, ThePreviewNamesAMissingOrUnusableChoice) {
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
}

}  // namespace
}  // namespace vireo
