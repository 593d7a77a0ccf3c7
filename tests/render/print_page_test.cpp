#include "render/print_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/fake_window.h"
#include "fake_surface.h"
#include "layout/font_metrics.h"
#include "support/logging.h"
#include "support/runtime_error.h"

namespace vireo {
namespace {

using test::FakeSurface;
using ::testing::Contains;
using ::testing::ElementsAre;

constexpr uint32_t kInk = 0x112233;
constexpr uint32_t kHighlight = 0x00B000;

// Characters are 10 twips wide (bold 30, italic 20); lines are 1000 wide from x = 400.
class PrintPageTest : public ::testing::Test {
 protected:
  PrintPageTest() {
    surface.char_width = 10;
    metrics.MakeArrays(surface);
    surface.SetFontBold(false);
    surface.SetFontItalic(false);
    surface.SetForeColor(kInk);
  }

  static PageSettings Page(std::string text, double line_width = 1000) {
    PageSettings settings;
    settings.page_side = 1;
    settings.page_text = std::move(text);
    settings.line_width = line_width;
    settings.left = 400;
    settings.top = 300;
    settings.lines_per_page = 30;
    settings.line_step = 16;
    settings.highlight_colour = kHighlight;
    return settings;
  }

  std::vector<std::string> Lines(const PageSettings& settings) {
    composer.DisplayPage(settings, surface, metrics);
    return composer.lines();
  }

  FakeSurface surface;
  clsFontMetrics metrics;
  test::RecordingPump pump;
  clsPrintPage composer{pump};
};

// Justified when at least 70 % full, unless centred or paragraph end; lines 240 high, step 16.
TEST_F(PrintPageTest, DrawsEachLineLeftAlignedJustifiedOrCentred) {
  struct Run {
    std::string text;
    double x, y;
  };
  struct Case {
    std::string text;
    std::vector<Run> runs;
    bool indented = true;
  };
  const std::string a34 = std::string(34, 'a') + " ", b34(34, 'b'), b35(35, 'b'), c20(20, 'c');
  const std::string full = a34 + std::string(40, 'b');
  const std::string wide = std::string(44, 'a') + " " + std::string(44, 'b');
  const Case cases[] = {
      // 70 % full: justified, the one space takes the whole gap of 300.
      {a34 + b35, {{a34, 400, 300}, {b35, 1050, 300}}},
      // 69 % full: left aligned.
      {a34 + b34, {{a34 + b34, 400, 300}}},
      // The last line of a paragraph is never justified.
      {full + " \n next", {{full, 400, 300}, {"   next", 400, 556}}},
      // Centred, at 400 + (1000 - 50) / 2; full but centred, at 400 + (1000 - 890) / 2.
      {"\x84Title \n body", {{"Title", 875, 300}, {"   body", 400, 556}}},
      {"\x84" + wide + " " + c20 + " end", {{wide, 455, 300}, {c20 + " end", 400, 556}}},
      {"One. \n Two three", {{"One.", 400, 300}, {"Two three", 400, 556}}, false},  // no indent
      // A page whose first line would be empty starts with its first text line.
      {"\n Next words ", {{"   Next words", 400, 300}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    surface.runs.clear();
    PageSettings settings = Page(c.text);
    settings.indented = c.indented;
    Lines(settings);
    ASSERT_EQ(surface.runs.size(), c.runs.size());
    for (size_t i = 0; i < c.runs.size(); ++i) {
      EXPECT_EQ(surface.runs[i].text, c.runs[i].text);
      EXPECT_EQ(surface.runs[i].x, c.runs[i].x) << c.runs[i].text;
      EXPECT_EQ(surface.runs[i].y, c.runs[i].y) << c.runs[i].text;
    }
  }
  EXPECT_EQ(pump.yields, static_cast<int>(std::size(cases))) << "one yield per page";
}

TEST_F(PrintPageTest, StyleCodesSwitchTheFontAndAreNotDrawn) {
  Lines(
      Page("\x80"
           "bold\x81 plain \x87under\x88"));
  ASSERT_THAT(surface.RunTexts(), ElementsAre("bold", " plain ", "under"));
  EXPECT_TRUE(surface.runs[0].bold);
  EXPECT_FALSE(surface.runs[1].bold);
  EXPECT_EQ(surface.runs[1].x, 520);  // four bold letters of 30
  EXPECT_TRUE(surface.runs[2].underline);
  EXPECT_EQ(surface.runs[2].x, 590);
}

TEST_F(PrintPageTest, HighlightsEveryMatchOfTheSearchTermWhateverItsCaseButNotThePrompt) {
  PageSettings settings = Page("the quick Fox jumps, fox");
  settings.search_term = "fOX";
  Lines(settings);
  ASSERT_THAT(surface.RunTexts(), ElementsAre("the quick ", "Fox", " jumps, ", "fox"));
  EXPECT_EQ(surface.runs[1].x, 500);
  EXPECT_THAT((std::vector{surface.runs[0].colour, surface.runs[1].colour, surface.runs[2].colour,
                           surface.runs[3].colour}),
              ElementsAre(kInk, kHighlight, kInk, kHighlight));
  EXPECT_EQ(surface.ForeColor(), kInk);  // restored at the end of the line

  for (const std::string term : {"Search Term", "   ", ""}) {
    surface.runs.clear();
    settings = Page("type a Search Term here");
    settings.search_term = term;
    Lines(settings);
    ASSERT_EQ(surface.runs.size(), 1u) << "term '" << term << "'";
    EXPECT_EQ(surface.runs[0].colour, kInk);
  }
}

// A printer that has stopped taking drawing.
class StoppedPrinter : public FakeSurface {
 public:
  void PaintPicture(const Picture&, double, double, double, double) override {
    throw RuntimeError(ErrorNumber::kPrinterError);
  }
};

TEST_F(PrintPageTest, PrintsAPictureOnThePrinterAndSaysWhenThePrinterFails) {
  test::FakeUser user;
  composer.SetUser(&user);
  const Picture picture{2, 2, std::vector<uint32_t>(4, 0)};
  composer.PrintPictureBox(surface, picture, 120, 450, 600, 300);
  ASSERT_THAT(surface.RunTexts(), ElementsAre("picture 600x300"));
  EXPECT_EQ(surface.runs[0].x, 120);
  EXPECT_EQ(surface.runs[0].y, 450);
  EXPECT_TRUE(user.messages.empty());

  ClearActions();
  StoppedPrinter printer;
  composer.PrintPictureBox(printer, picture, 120, 450, 600, 300);
  EXPECT_THAT(user.messages, ElementsAre("Printer error"));  // its title is the e2e test's
  EXPECT_THAT(Actions().text,
              Contains("Printer error in sub printpicturebox(482) of module clsPrintPage"));
}

}  // namespace
}  // namespace vireo
