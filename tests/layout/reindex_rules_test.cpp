// The paginator's rules on tables where every character is 100 wide; page k
// starts at the blank or line feed in front of the word that opened it. Style
// codes are written in octal: \200 bold on, \201 off, \202 italic on, \203 off,
// \206 page end, \207 underline on.

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

TEST(ReindexRules, PageStartsAndCarriedStyles) {
  const std::string x20(20, 'x'), x21(21, 'x');
  const struct {
    std::string text;
    double line_width;
    int16_t lines_per_page;
    std::vector<std::string> pages;
  } cases[] = {
      // "aa " fills the 300-wide line; "bb" ends the text and completes a line, which
      // opens a page at the text's length when it completes the last page, else not.
      {"aa bb", 300, 1, {"1 0 0 0", "5 0 0 0"}},
      {"aa bb", 300, 2, {"1 0 0 0"}},
      // 10 characters fit 1050: a long word is split one character past its longest fitting
      // prefix (bold carried); the rest opens page 3.
      {"a xxxxxxxxxx\200xxxxxxxxxxxxxx end",
       1050,
       1,
       {"1 0 0 0", "2 1 0 0", "2 0 0 0", "31 0 0 0"}},
      // A word of 20 characters is laid out whole; one of 21 is split, its 10-character piece
      // fitting exactly.
      {"a " + x20 + " b", 1000, 1, {"1 0 0 0", "2 0 0 0", "24 0 0 0"}},
      {"a " + x21 + " b", 1000, 1, {"1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"}},
      // A hyphen inside a word breaks it: "\200b-" still fits after "aaaa ", page 2 starts
      // bold at the blank before it. A leading hyphen does not (else the 20 would stay whole),
      // nor one in the text's last word.
      {"aaaa \200b-cc dddd", 800, 1, {"1 0 0 0", "5 1 0 0", "15 0 0 0"}},
      {"a -" + x20 + " b", 1000, 1, {"1 0 0 0", "2 0 0 0", "2 0 0 0", "25 0 0 0"}},
      {"aaaa bb-cc", 700, 1, {"1 0 0 0", "10 0 0 0"}},
      // Code 134 ends the page after its line.
      {"aa \206 bb cc", 10000, 5, {"1 0 0 0", "3 0 0 0"}},
      // Styles are carried from the page just finished only: page 2 does not mention the open
      // styles, so page 3 starts plain; italic opened and closed on page 3 is not carried.
      {"\200\202\207 bbb \202\203x ddd \201ee",
       400,
       1,
       {"1 0 0 0", "4 1 1 1", "8 0 0 0", "12 0 0 0", "19 0 0 0"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(Paginate(c.text, c.line_width, c.lines_per_page).pages, c.pages);
  }
}

TEST(ReindexRules, PassedPageComesWhenThePaginatorIsThreePagesPastTheReader) {
  // Every "ab" fills a line: page k starts at 3k - 3.
  const std::string text = "ab ab ab ab ab ab ab ab ab ab ab ab";
  EXPECT_THAT(Paginate(text, 300, 1, 1).events, Contains("passed 1 at 5 (busy)"));
  // Position 10 lies on page 4; page 5 starts at 12.
  EXPECT_THAT(Paginate(text, 300, 1, 10).events, Contains("passed 10 at 8 (busy)"));
  // A book of fewer than five pages, or with no blank at all, is passed only at the end.
  EXPECT_THAT(Paginate("ab ab ab ab", 300, 1).events,
              ElementsAre("current 4 (busy)", "passed 1 at 4", "finished at 4"));
  EXPECT_THAT(Paginate("abcdef", 1000, 3).events,
              ElementsAre("current 1 (busy)", "passed 1 at 1", "finished at 1"));
}

}  // namespace
}  // namespace vireo
