// The paginator's rules, one behaviour per test, on tables where every
// character is 100 wide. Expected page starts are worked out by hand from the
// rules: page k starts at the blank or line feed in front of the word that
// opened it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layout/reindex.h"
#include "pagination_fixtures.h"

namespace vireo {
namespace {

using test::DumpPages;
using test::EventRecorder;
using ::testing::Contains;
using ::testing::ElementsAre;

struct Paginated {
  std::vector<std::string> pages;
  std::vector<std::string> events;
};

Paginated Paginate(std::string text, double line_width, int16_t lines_per_page,
                   int32_t reading_position = 1) {
  clsReindex reindex;
  reindex.FontMetrics() = test::UniformMetrics(100);
  PageIndex index;
  index.count = 1;
  EventRecorder recorder(index, [&] { return reindex.Busy(); });
  reindex.SetEvents(&recorder);
  reindex.NewReindexFile(text, InsertMode::kAllowed, index, reading_position, line_width,
                         lines_per_page, 100);
  return {DumpPages(index), recorder.events};
}

std::string Words(int count, const std::string& word) {
  std::string text;
  for (int i = 0; i < count; ++i) text += (i ? " " : "") + word;
  return text;
}

TEST(ReindexRules, PageStartsAndCarriedStyles) {
  const std::string split_word = std::string(10, 'x') + "\x80" + std::string(14, 'x');
  const struct {
    const char* what;
    std::string text;
    double line_width;
    int16_t lines_per_page;
    std::vector<std::string> pages;
  } cases[] = {
      {"text without a blank is one word on one page", "abcdef", 1000, 3, {"1 0 0 0"}},
      // "aa " fills the 300-wide line; "bb" ends the text and completes a line.
      {"the line completing the last page at the end opens a page at the length",
       "aa bb",
       300,
       1,
       {"1 0 0 0", "5 0 0 0"}},
      {"a line that leaves the last page open does not", "aa bb", 300, 2, {"1 0 0 0"}},
      // A 25-character word with bold switched on at its 11th character. The
      // longest prefix that fits 1050 is 10 characters; the piece takes 11, so
      // the bold code lands on page 1 and is carried to page 2. The other 14
      // characters follow on the next (indented) line, which opens page 3 at
      // the same blank, and the final word ends the text.
      {"a long word is split one character past its longest fitting prefix",
       "a " + split_word + " end",
       1050,
       1,
       {"1 0 0 0", "2 1 0 0", "2 0 0 0", "31 0 0 0"}},
      // 2000 wide on a 1000 line.
      {"a word of 20 characters is laid out whole",
       "a " + std::string(20, 'x') + " b",
       1000,
       1,
       {"1 0 0 0", "2 0 0 0", "24 0 0 0"}},
      // A 10-character piece fits exactly (no overhang), the other 11 take a
      // line of their own.
      {"a word of 21 characters is split",
       "a " + std::string(21, 'x') + " b",
       1000,
       1,
       {"1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"}},
      // "\x80b-" still fits after "aaaa ": the bold code is on page 1, page 2
      // starts bold, and "cc" opens it at the blank before "\x80b".
      {"a hyphen inside a word breaks it",
       "aaaa \x80"
       "b-cc dddd",
       800,
       1,
       {"1 0 0 0", "5 1 0 0", "15 0 0 0"}},
      // "-" + 20 x is one 21-character word, split in two pieces; a break at
      // the hyphen would have left a 20-character word that is never split.
      {"a leading hyphen does not break",
       "a -" + std::string(20, 'x') + " b",
       1000,
       1,
       {"1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"}},
      // Broken, "cc" would open a page at 5.
      {"the last word of the text is not broken", "aaaa bb-cc", 700, 1, {"1 0 0 0", "10 0 0 0"}},
      // AddBreak writes " \x86 "; the line holding it is the last of its page.
      {"code 134 ends the page after its line", "aa \x86 bb cc", 10000, 5, {"1 0 0 0", "3 0 0 0"}},
      {"without code 134 the page goes on", "aa bb cc", 10000, 5, {"1 0 0 0"}},
      // One word per page. Bold, italic and underline open on page 1 and are
      // carried to page 2; page 2 does not mention them, so page 3 starts
      // plain although the styles are still open. Italic opened and closed on
      // page 3 is not carried to page 4.
      {"styles are carried from the page just finished only",
       "\x80\x82\x87 bbb \x82\x83"
       "x ddd \x81"
       "ee",
       400,
       1,
       {"1 0 0 0", "4 1 1 1", "8 0 0 0", "12 0 0 0", "19 0 0 0"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Paginate(c.text, c.line_width, c.lines_per_page).pages, c.pages);
  }
}

TEST(ReindexRules, PassedPageComesWhenThePaginatorIsThreePagesPastTheReader) {
  // Every "ab" fills a line and opens a page: page k starts at 3k - 3.
  const std::string text = Words(12, "ab");
  EXPECT_THAT(Paginate(text, 300, 1, 1).events, Contains("passed 1 at 5 (busy)"));
  // Position 10 lies on page 4; page 5 starts at 12.
  EXPECT_THAT(Paginate(text, 300, 1, 10).events, Contains("passed 10 at 8 (busy)"));
  // A book of fewer than five pages is passed only at the end.
  EXPECT_THAT(Paginate(Words(4, "ab"), 300, 1).events,
              ElementsAre("current 4 (busy)", "passed 1 at 4", "finished at 4"));
  EXPECT_THAT(Paginate("abcdef", 1000, 3).events,
              ElementsAre("current 1 (busy)", "passed 1 at 1", "finished at 1"));
}

}  // namespace
}  // namespace vireo
