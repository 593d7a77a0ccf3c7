// The paginator's rules, one behaviour per test, on tables where every
// character is 100 wide. Expected page starts are worked out by hand from the
// rules: page k starts at the blank or line feed in front of the word that
// opened it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/reindex.h"
#include "pagination_fixtures.h"
#include "support/logging.h"

namespace vireo {
namespace {

using test::DumpPages;
using test::EventRecorder;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

struct Paginated {
  std::vector<std::string> pages;
  std::vector<std::string> events;
  std::string text;
  int32_t upper_bound = 0;
};

struct Options {
  int32_t reading_position = 1;
  int32_t first_page = 1;
  InsertMode insert = InsertMode::kAllowed;
  double line_height = 100;
  ImageHeightFunction heights;

  static Options Reader(int32_t position) {
    Options options;
    options.reading_position = position;
    return options;
  }
  static Options TitlePage() {
    Options options;
    options.first_page = 2;
    return options;
  }
  static Options Images(ImageHeightFunction heights, InsertMode insert = InsertMode::kAllowed) {
    Options options;
    options.heights = std::move(heights);
    options.insert = insert;
    return options;
  }
};

Paginated Paginate(std::string text, double line_width, int16_t lines_per_page,
                   Options options = {}) {
  clsReindex reindex;
  reindex.FontMetrics() = test::UniformMetrics(100);
  PageIndex index;
  index.count = options.first_page;
  EventRecorder recorder(index, [&] { return reindex.Busy(); });
  reindex.SetEvents(&recorder);
  reindex.SetImageHeights(options.heights);
  reindex.NewReindexFile(text, options.insert, index, options.reading_position, line_width,
                         lines_per_page, options.line_height);
  return {DumpPages(index), recorder.events, text, index.UpperBound()};
}

std::string Words(int count, const std::string& word) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i ? " " : "") + word;
  return text;
}

TEST(ReindexRules, TextWithoutBlankIsOneWordOnOnePage) {
  const Paginated run = Paginate("abcdef", 1000, 3);
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0"));
  EXPECT_THAT(run.events, ElementsAre("current 1 (busy)", "passed 1 at 1", "finished at 1"));
}

TEST(ReindexRules, TitlePageKeepsStartZeroAndTextBeginsOnPageTwo) {
  const Paginated run = Paginate("aa bb", 1000, 3, Options::TitlePage());
  EXPECT_THAT(run.pages, ElementsAre("0 0 0 0", "1 0 0 0"));
}

TEST(ReindexRules, LineCompletingTheLastPageAtTheEndOpensAPageAtTheLength) {
  // "aa " fills the 300-wide line; "bb" ends the text and completes a line.
  EXPECT_THAT(Paginate("aa bb", 300, 1).pages, ElementsAre("1 0 0 0", "5 0 0 0"));
  EXPECT_THAT(Paginate("aa bb", 300, 2).pages, ElementsAre("1 0 0 0"));
}

TEST(ReindexRules, LongWordIsSplitOneCharacterPastTheLongestFittingPrefix) {
  // A 25-character word with bold switched on at its 11th character. The
  // longest prefix that fits 1050 is 10 characters; the piece takes 11, so the
  // bold code lands on page 1 and is carried to page 2. The other 14
  // characters follow on the next (indented) line, which opens page 3 at the
  // same blank, and the final word ends the text.
  const std::string word = std::string(10, 'x') + "\x80" + std::string(14, 'x');
  const Paginated run = Paginate("a " + word + " end", 1050, 1);
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0", "2 1 0 0", "2 0 0 0", "31 0 0 0"));
}

TEST(ReindexRules, OnlyWordsOfMoreThanTwentyCharactersAreSplit) {
  // 20 characters, 2000 wide on a 1000 line: laid out whole.
  EXPECT_THAT(Paginate("a " + std::string(20, 'x') + " b", 1000, 1).pages,
              ElementsAre("1 0 0 0", "2 0 0 0", "24 0 0 0"));
  // 21 characters: a 10-character piece fits exactly (no overhang), the other
  // 11 take a line of their own.
  EXPECT_THAT(Paginate("a " + std::string(21, 'x') + " b", 1000, 1).pages,
              ElementsAre("1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"));
}

TEST(ReindexRules, WordUsedWholeByItsPieceLeavesAZeroBehind) {
  // Prefixes of 21 characters stay below 2150; the whole word (2200) does
  // not, so the piece is all 22 characters and a "0" word is left over. It
  // sits on the indented line (300 + 200) and pushes the 17-character word
  // (1800) to a line, and page, of its own; without it that word would fit.
  const std::string text = "a " + std::string(22, 'x') + " " + std::string(17, 'b') + " c";
  EXPECT_THAT(Paginate(text, 2150, 1).pages,
              ElementsAre("1 0 0 0", "2 0 0 0", "25 0 0 0", "44 0 0 0"));
}

TEST(ReindexRules, HyphenInsideAWordIsABreakPointAndStaysOnTheFirstLine) {
  // "\x80b-" still fits the 800 line after "aaaa ", so the bold code is on
  // page 1 and page 2 starts bold; "cc" opens page 2 at the blank before "\x80b".
  EXPECT_THAT(Paginate("aaaa \x80"
                       "b-cc dddd",
                       800, 1)
                  .pages,
              ElementsAre("1 0 0 0", "5 1 0 0", "15 0 0 0"));
}

TEST(ReindexRules, LeadingHyphenIsNoBreakPoint) {
  // "-" + 20 x is one 21-character word, split into two pieces; a break at
  // the hyphen would have left a 20-character word that is never split.
  EXPECT_THAT(Paginate("a -" + std::string(20, 'x') + " b", 1000, 1).pages,
              ElementsAre("1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"));
}

TEST(ReindexRules, HyphenInTheLastWordIsNoBreakPoint) {
  // "bb-cc" ends the text whole; broken at its hyphen, "cc" would have
  // opened a page of its own at 5.
  EXPECT_THAT(Paginate("aaaa bb-cc", 700, 1).pages, ElementsAre("1 0 0 0", "10 0 0 0"));
}

TEST(ReindexRules, PageBreakCodeEndsThePageAfterItsLine) {
  // AddBreak writes " \x86 "; the line holding it is the last of its page.
  EXPECT_THAT(Paginate("aa \x86 bb cc", 10000, 5).pages, ElementsAre("1 0 0 0", "3 0 0 0"));
  EXPECT_THAT(Paginate("aa bb cc", 10000, 5).pages, ElementsAre("1 0 0 0"));
}

TEST(ReindexRules, LineFeedOpensPagesAtItself) {
  // Paragraph marks end lines; the page opened by a line feed starts on it.
  EXPECT_THAT(Paginate("aa \n bb \n cc \n dd", 10000, 2).pages,
              ElementsAre("1 0 0 0", "9 0 0 0", "17 0 0 0"));
}

TEST(ReindexRules, StylesAreCarriedFromThePageJustFinishedOnly) {
  // One word per page. Bold, italic and underline open on page 1 and are
  // carried to page 2; page 2 does not mention them, so page 3 starts plain
  // although the styles are still open. Italic opened and closed on page 3
  // is not carried to page 4.
  const Paginated run = Paginate(
      "\x80\x82\x87 bbb \x82\x83"
      "x ddd \x81"
      "ee",
      400, 1);
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0", "4 1 1 1", "8 0 0 0", "12 0 0 0", "19 0 0 0"));
}

TEST(ReindexRules, PassedPageComesWhenThePaginatorIsThreePagesPastTheReader) {
  // Every "ab" fills a line and opens a page: page k starts at 3k - 3.
  const std::string text = Words(12, "ab");
  EXPECT_THAT(Paginate(text, 300, 1, Options::Reader(1)).events, Contains("passed 1 at 5 (busy)"));
  // Position 10 lies on page 4; page 5 starts at 12.
  EXPECT_THAT(Paginate(text, 300, 1, Options::Reader(10)).events,
              Contains("passed 10 at 8 (busy)"));
}

TEST(ReindexRules, ShortBookGetsPassedPageOnlyAtTheEnd) {
  const Paginated run = Paginate(Words(4, "ab"), 300, 1);
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0", "3 0 0 0", "6 0 0 0", "11 0 0 0"));
  EXPECT_THAT(run.events, ElementsAre("current 4 (busy)", "passed 1 at 4", "finished at 4"));
}

TEST(ReindexRules, ProgressRepeatsForEveryWordWhileTheCountStaysOnAMultipleOf25) {
  // Two lines per page: page 25 opens on word 49, 26 on word 51; words 49
  // and 50 both report 25.
  const Paginated run = Paginate(Words(60, "ab"), 300, 2, Options::Reader(1000));
  EXPECT_EQ(std::count(run.events.begin(), run.events.end(), "current 25 (busy)"), 2);
}

TEST(ReindexRules, IndexGrowsBy250AfterTheFirst2000Pages) {
  const Paginated run = Paginate(Words(2100, "ab"), 300, 1);
  // Words 2..2099 open pages 2..2099 (page k at 3k - 3); the last word
  // completes a line at the end of the text: page 2100 at the length.
  ASSERT_EQ(run.pages.size(), 2100u);
  EXPECT_EQ(run.upper_bound, 2250);
  EXPECT_EQ(run.pages[1999], "5997 0 0 0");
  EXPECT_EQ(run.pages[2099], "6299 0 0 0");
}

TEST(ReindexRules, ImageThatDoesNotFitTheRestOfThePageMovesToTheNext) {
  // Height 150 on lines of 100: 150 / 100 + 1 = 2.5 rounds to 2 lines. One
  // line is used, two remain on a page of two: one blank line fills page 1,
  // the image opens page 2 at the blank in front of it and gets its 2 lines.
  const Paginated run =
      Paginate("aa \n bb [IMG=0] cc", 10000, 2, Options::Images([](int32_t) { return 150.0; }));
  EXPECT_EQ(run.text, "aa \n bb [IMG=0] \n  \n \n cc");
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0", "8 0 0 0", "20 0 0 0", "25 0 0 0"));
}

TEST(ReindexRules, ImageTallerThanAPageGetsAPageOfItsOwn) {
  const auto tall = [](int32_t) { return 500.0; };
  const Paginated run = Paginate("aa [IMG=0] bb", 10000, 2, Options::Images(tall));
  EXPECT_EQ(run.text, "aa [IMG=0] \n  \n \n  \n bb");
  EXPECT_THAT(run.pages, ElementsAre("1 0 0 0", "3 0 0 0", "15 0 0 0", "20 0 0 0"));
  // Without insertion only the page opening takes effect.
  const Paginated fixed =
      Paginate("aa [IMG=0] bb", 10000, 2, Options::Images(tall, InsertMode::kNotAllowed));
  EXPECT_EQ(fixed.text, "aa [IMG=0] bb");
  EXPECT_THAT(fixed.pages, ElementsAre("1 0 0 0", "3 0 0 0"));
}

TEST(ReindexRules, PlaceholderOfAnUnknownImageIsLaidOutAsTextAndLogged) {
  ClearActions();
  const Paginated run = Paginate("aa [IMG=7] bb", 10000, 2, Options::Images([](int32_t n) {
                                   return n == 7 ? std::nullopt : std::optional<double>(100);
                                 }));
  EXPECT_EQ(run.text, "aa [IMG=7] bb");
  EXPECT_THAT(Actions().text[1], HasSubstr("in sub newreindexfile(91) of module clsReindex"));
}

TEST(ReindexRules, LineCountOverflowIsLoggedAndTheClosingEventsStillCome) {
  ClearActions();
  const Paginated run = Paginate("aa \x86 bb", 10000, -32768);
  EXPECT_EQ(Actions().text[1], "Overflow in sub newreindexfile(6) of module clsReindex");
  EXPECT_THAT(run.events, ElementsAre("current 1 (busy)", "passed 1 at 1", "finished at 1"));
}

TEST(ReindexInsertion, NewLinesJoinsParagraphMarks) {
  clsReindex reindex;
  EXPECT_EQ(reindex.NewLines(0), "");
  EXPECT_EQ(reindex.NewLines(-3), "");
  EXPECT_EQ(reindex.NewLines(2), " \n  \n ");
}

TEST(ReindexInsertion, AddLinesAndAddBreakReplaceOneCharacter) {
  clsReindex reindex;
  std::string text = "ab cd";
  reindex.AddBreak(text, 3);
  EXPECT_EQ(text, "ab \x86 cd");
  reindex.AddLines(text, 1, 1);
  EXPECT_EQ(text, " \n b \x86 cd");
  reindex.AddLines(text, 2, 0);
  EXPECT_EQ(text, "  b \x86 cd");
  ClearActions();
  reindex.AddLines(text, 0, 1);
  EXPECT_EQ(text, "  b \x86 cd");
  EXPECT_THAT(Actions().text[1], HasSubstr("in sub addlines(5) of module clsReindex"));
}

TEST(ReindexInsertion, NotAllowingInsertionOnceStopsItForGood) {
  clsReindex reindex;
  PageIndex index;
  std::string text = "ab cd";
  reindex.NewReindexFile(text, InsertMode::kNotAllowed, index, 1, 1000, 10, 100);
  reindex.NewReindexFile(text, InsertMode::kAllowed, index, 1, 1000, 10, 100);
  EXPECT_FALSE(reindex.InsertAllowed());
  reindex.AddBreak(text, 3);
  reindex.AddLines(text, 3, 2);
  EXPECT_EQ(text, "ab cd");
}

}  // namespace
}  // namespace vireo
