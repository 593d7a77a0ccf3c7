#include "prefs/reader_preferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "prefs/preference_ranges.h"
#include "prefs/settings_get_set.h"
#include "prefs/shared_settings.h"
#include "support/logging.h"
#include "test_support.h"

namespace vireo {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

std::string Twips(double value) { return std::to_string(static_cast<long long>(value)); }
std::string OnOff(bool on) { return on ? "on" : "off"; }

// Records every effect in order; the screen is 20000 x 15000 twips.
class RecordingHost : public PreferencesHost {
 public:
  void ApplyFontName(const std::string& name) override { calls.push_back("font name " + name); }
  void ApplyFontSize(int points) override { calls.push_back("font size " + Twips(points)); }
  void SetJustify(bool on) override { calls.push_back("justify " + OnOff(on)); }
  void SetIndent(bool on) override { calls.push_back("indent " + OnOff(on)); }
  void TickUnderscores(bool on) override { calls.push_back("underscores " + OnOff(on)); }
  void TickExtraParagraphLine(bool on) override { calls.push_back("extra line " + OnOff(on)); }
  bool UnderscoresTicked() const override { return underscores_ticked; }
  bool ExtraParagraphLineTicked() const override { return extra_line_ticked; }
  void SetPageColours() override { calls.push_back("page colours"); }
  WindowSize ScreenSize() const override { return {20000, 15000}; }
  WindowSize CurrentWindowSize() const override { return window; }
  void MaximiseWindow() override { calls.push_back("maximise"); }
  void SetResizing(bool on) override { calls.push_back("resizing " + OnOff(on)); }
  void SetWindowHeight(double twips) override { calls.push_back("height " + Twips(twips)); }
  void SetWindowWidth(double twips) override { calls.push_back("width " + Twips(twips)); }

  std::vector<std::string> calls;
  WindowSize window{9500, 6570};
  bool underscores_ticked = false;
  bool extra_line_ticked = false;
};

class ReaderPreferencesTest : public ::testing::Test {
 protected:
  ReaderPreferencesTest() {
    ResetGlobalSettings();
    ClearActions();
  }
  ~ReaderPreferencesTest() override { ResetGlobalSettings(); }

  void Read() { ReadSettings(prefs, host, system); }

  ReaderPreferences prefs;
  RecordingHost host;
  SystemColours system{0xABCDEF, 0x123456};
  test::TempFolder folder;
};

TEST_F(ReaderPreferencesTest, AWindowNearlyAsLargeAsTheScreenOpensMaximised) {
  // 0.95 of the 20000 x 15000 screen in either direction.
  const struct {
    int width, height;
    bool maximised;
  } cases[] = {{19000, 6570, true}, {18999, 14250, true}, {18999, 14249, false}};
  const auto count = [&](const std::string& call) {
    return std::count(host.calls.begin(), host.calls.end(), call);
  };
  for (const auto& c : cases) {
    host.calls.clear();
    sset("WinWidth", c.width);
    sset("WinHeight", c.height);
    Read();
    EXPECT_EQ(count("maximise"), c.maximised ? 1 : 0) << c.width << " x " << c.height;
    EXPECT_EQ(count("width " + std::to_string(c.width)), c.maximised ? 0 : 1);
  }
}

TEST_F(ReaderPreferencesTest, AWrongTypedValueIsLoggedAndTheRestAreRead) {
  prefs.font_size = 14;
  sset("FontSize", "big");
  sset("Justify", false);
  sset("InkColour", "dark");
  Read();
  EXPECT_EQ(prefs.font_size, 14);
  EXPECT_THAT(host.calls, Not(Contains(::testing::StartsWith("font size"))));
  EXPECT_THAT(host.calls, Contains("justify off"));
  EXPECT_EQ(prefs.ink_colour, 0u);  // the built-in value stays
  EXPECT_THAT(host.calls, Contains("page colours"));
  EXPECT_EQ(std::count(Actions().text.begin(), Actions().text.end(),
                       "Type mismatch in sub readsettings(13) of module frmMain"),
            2);
}

TEST_F(ReaderPreferencesTest, ValuesAtTheLimitsAreKeptAndBeyondThemReplacedByTheDefault) {
  // A value at a limit and one just beyond it; the borders' limits are the settings dialog's test.
  const struct {
    NumberPreference preference;
    double kept, rejected;
  } cases[] = {
      {FontSizePreference(), 6, 5},
      {FontSizePreference(), 48, 49},
      {TextureNumPreference(), -1, -2},
      {ColourPreference("InkColour", 0), 0xFFFFFF, 0x1000000},
  };
  for (const auto& c : cases) {
    for (const bool kept : {true, false}) {
      const double value = kept ? c.kept : c.rejected;
      sset(c.preference.key, value);
      EXPECT_EQ(ReadNumberPreference(c.preference), kept ? value : c.preference.default_value)
          << c.preference.key << value;
      EXPECT_EQ(GlobalSettings()->SettingPresent(c.preference.key), kept)
          << "a rejected value is not saved again";
    }
  }
}

// The defaults a first run stores are the start-up window's test.
TEST_F(ReaderPreferencesTest, AFirstRunTakesTheSystemsColoursAndWhatItStoresIsReadBackNextTime) {
  const std::string path = folder.File("Vireo.ini");
  LoadSettings(path);  // no file yet
  Read();
  EXPECT_EQ(prefs.paper_colour, 0xABCDEFu);
  EXPECT_EQ(prefs.ink_colour, 0x123456u);
  prefs.font_name = "Arial";
  prefs.font_size = 13;
  prefs.justify = false;
  prefs.indented = false;
  prefs.single_page_mode = true;
  prefs.path = folder.str();
  prefs.paper_colour = 0xEEEEEE;
  host.window = {5000, 7000};
  host.underscores_ticked = true;
  StoreSettings(prefs, host, path);
  ResetGlobalSettings();
  LoadSettings(path);
  ReaderPreferences read;
  RecordingHost fresh;
  ReadSettings(read, fresh, system);
  ReadDefaultPath(read, "/nowhere");
  EXPECT_THAT(fresh.calls,
              ElementsAre("font name Arial", "font size 13", "justify off", "indent off",
                          "underscores on", "extra line off", "page colours", "resizing on",
                          "height 7000", "resizing off", "width 5000"));
  EXPECT_TRUE(read.single_page_mode);
  EXPECT_EQ(read.paper_colour, 0xEEEEEEu);
  EXPECT_EQ(read.path, folder.str());
}

}  // namespace
}  // namespace vireo
