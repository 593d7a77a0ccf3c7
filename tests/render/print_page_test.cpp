#include "render/print_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fake_surface.h"
#include "layout/font_metrics.h"
#include "render/render_test_support.h"

namespace vireo {
namespace {

using test::FakeSurface;
using ::testing::ElementsAre;

constexpr uint32_t kInk = 0x112233;
constexpr uint32_t kHighlight = 0x00B000;

// Every character is 10 twips wide (bold 30, italic 20), so a line of n
// characters is 10 n wide; lines are 1000 twips wide starting at x = 400.
class PrintPageTest : public ::testing::Test {
 protected:
  PrintPageTest() {
    surface.char_width = 10;
    metrics.MakeArrays(surface);
    surface.SetFontBold(false);
    surface.SetFontItalic(false);
    surface.SetForeColor(kInk);
    ClearActions();
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

  std::vector<std::string> RunTexts() const {
    std::vector<std::string> texts;
    for (const auto& run : surface.runs) texts.push_back(run.text);
    return texts;
  }

  FakeSurface surface;
  clsFontMetrics metrics;
  test::RecordingPump pump;
  clsPrintPage composer{pump};
};

// --- Laying the page text out into lines ---

TEST_F(PrintPageTest, WrapsWordsKeepsTheParagraphIndentAndMarksParagraphEnds) {
  EXPECT_THAT(Lines(Page("one two. \n Three four five ", 100)),
              ElementsAre("one two.\n", "   Three", "four five"));
  EXPECT_EQ(pump.yields, 1);
}

TEST_F(PrintPageTest, BreaksAfterAnyHyphenBeforeASpaceEvenALeadingOne) {
  EXPECT_THAT(Lines(Page("aaaa -bbbb well-known ", 60)),
              ElementsAre("aaaa -", "bbbb", "well-", "known"));
}

TEST_F(PrintPageTest, DeletesPageBreaksAndPageNumberTagsFromWords) {
  EXPECT_THAT(Lines(Page("Chapter[npn=n] one \x86 next[npn=r] [npn=d]end ")),
              ElementsAre("Chapter one\n", "   next end"));
}

TEST_F(PrintPageTest, SplitsALongWordAtTheShortestPrefixAsWideAsTheLine) {
  // 24 characters (240) still fit in 245; the piece is 25 characters.
  EXPECT_THAT(Lines(Page(std::string(30, 'x') + " ", 245)),
              ElementsAre(std::string(25, 'x'), "   xxxxx"));
}

TEST_F(PrintPageTest, APageWhoseFirstLineWouldBeEmptyStartsWithItsFirstTextLine) {
  EXPECT_THAT(Lines(Page("\n Next words ")), ElementsAre("   Next words"));
  ASSERT_EQ(surface.runs.size(), 1u);
  EXPECT_EQ(surface.runs[0].y, 300);
}

// --- Drawing the lines ---

TEST_F(PrintPageTest, ALineSeventyPercentFullIsJustifiedToTheRightEdge) {
  Lines(Page(std::string(34, 'a') + " " + std::string(35, 'b')));
  ASSERT_THAT(RunTexts(), ElementsAre(std::string(34, 'a') + " ", std::string(35, 'b')));
  EXPECT_EQ(surface.runs[0].x, 400);
  // The one space takes the whole gap of 300: the last word ends at 1400.
  EXPECT_EQ(surface.runs[1].x, 1050);
}

TEST_F(PrintPageTest, ALineSixtyNinePercentFullIsLeftAligned) {
  const std::string line = std::string(34, 'a') + " " + std::string(34, 'b');
  Lines(Page(line));
  ASSERT_THAT(RunTexts(), ElementsAre(line));
  EXPECT_EQ(surface.runs[0].x, 400);
}

TEST_F(PrintPageTest, TheLastLineOfAParagraphIsNeverJustified) {
  const std::string full = std::string(34, 'a') + " " + std::string(40, 'b');
  Lines(Page(full + " \n next"));
  ASSERT_GE(surface.runs.size(), 1u);
  EXPECT_EQ(surface.runs[0].text, full);
  EXPECT_EQ(surface.runs[0].x, 400);
}

TEST_F(PrintPageTest, JustifiedWordsEndExactlyOnTheRightEdge) {
  // Eight words of ten letters fill 870 of 1004 twips: 134 twips over seven
  // spaces, which no binary fraction holds exactly.
  std::string text;
  for (char c = 'a'; c < 'i'; ++c) text += std::string(10, c) + " ";
  text += std::string(15, 'z') + " ";
  Lines(Page(text, 1004));
  ASSERT_GE(surface.runs.size(), 8u);
  EXPECT_DOUBLE_EQ(surface.runs[1].x, 400 + 110 + 134.0 / 7);
  const auto& last = surface.runs[7];
  EXPECT_EQ(last.text, std::string(10, 'h'));
  EXPECT_DOUBLE_EQ(last.x + 100, 1404);
}

TEST_F(PrintPageTest, ACentredLineIsCentredAndNeverJustified) {
  Lines(Page("\x84Title \n body"));
  ASSERT_GE(surface.runs.size(), 1u);
  EXPECT_EQ(surface.runs[0].text, "Title");
  EXPECT_EQ(surface.runs[0].x, 875);  // 400 + (1000 - 50) / 2

  surface.runs.clear();
  const std::string full = std::string(44, 'a') + " " + std::string(44, 'b');
  Lines(Page("\x84" + full + " " + std::string(20, 'c') + " end"));
  ASSERT_GE(surface.runs.size(), 1u);
  EXPECT_EQ(surface.runs[0].text, full);
  EXPECT_EQ(surface.runs[0].x, 455);  // 400 + (1000 - 890) / 2
}

TEST_F(PrintPageTest, WithoutIndentationParagraphsStartAtTheLeftEdge) {
  PageSettings settings = Page("One. \n Two three");
  Lines(settings);
  ASSERT_THAT(RunTexts(), ElementsAre("One.", "   Two three"));
  EXPECT_EQ(surface.runs[1].x, 400);
  EXPECT_EQ(surface.runs[1].y, 556);  // 300 + line height 240 + step 16

  surface.runs.clear();
  settings.indented = false;
  Lines(settings);
  EXPECT_THAT(RunTexts(), ElementsAre("One.", "Two three"));
}

TEST_F(PrintPageTest, StyleCodesSwitchTheFontAndAreNotDrawn) {
  Lines(
      Page("\x80"
           "bold\x81 plain \x87under\x88"));
  ASSERT_THAT(RunTexts(), ElementsAre("bold", " plain ", "under"));
  EXPECT_TRUE(surface.runs[0].bold);
  EXPECT_FALSE(surface.runs[1].bold);
  EXPECT_EQ(surface.runs[1].x, 520);  // four bold letters of 30
  EXPECT_TRUE(surface.runs[2].underline);
  EXPECT_EQ(surface.runs[2].x, 590);
}

TEST_F(PrintPageTest, HighlightsEveryMatchOfTheSearchTermWhateverItsCase) {
  PageSettings settings = Page("the quick Fox jumps, fox");
  settings.search_term = "fOX";
  Lines(settings);
  ASSERT_THAT(RunTexts(), ElementsAre("the quick ", "Fox", " jumps, ", "fox"));
  EXPECT_EQ(surface.runs[0].colour, kInk);
  EXPECT_EQ(surface.runs[1].colour, kHighlight);
  EXPECT_EQ(surface.runs[1].x, 500);
  EXPECT_EQ(surface.runs[2].colour, kInk);
  EXPECT_EQ(surface.runs[3].colour, kHighlight);
  EXPECT_EQ(surface.ForeColor(), kInk);  // restored at the end of the line
}

TEST_F(PrintPageTest, TheSearchPromptAndBlankTermsHighlightNothing) {
  for (const std::string term : {"Search Term", "   ", ""}) {
    surface.runs.clear();
    PageSettings settings = Page("type a Search Term here");
    settings.search_term = term;
    Lines(settings);
    ASSERT_EQ(surface.runs.size(), 1u) << "term '" << term << "'";
    EXPECT_EQ(surface.runs[0].colour, kInk);
  }
}

}  // namespace
}  // namespace vireo
