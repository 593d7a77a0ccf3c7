// Searching a book page by page, on a hand-built page index.

#include "nav/search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vireo {
namespace {

constexpr auto kForward = SearchDirection::kForward;
constexpr auto kBackward = SearchDirection::kBackward;

struct SearchCase {
  const char* term;
  SearchDirection direction;
  int current_page;
  std::optional<int> found;
  const char* why = "";
};

// Runs the cases on a book whose pages are the given texts, one after
// another, with the page index pointing at the first character of each.
void ExpectSearches(const std::vector<std::string>& page_texts,
                    const std::vector<SearchCase>& cases) {
  std::string text;
  PageIndex pages;
  pages.count = static_cast<int32_t>(page_texts.size());
  for (size_t p = 0; p < page_texts.size(); ++p) {
    pages.SetPageStart(static_cast<int32_t>(p + 1), static_cast<int32_t>(text.size() + 1));
    text += page_texts[p];
  }
  BookSearch search;
  search.SetText(text);
  for (const SearchCase& c : cases) {
    SCOPED_TRACE(std::string("'") + c.term + (c.direction == kForward ? "' forward" : "' back") +
                 " from page " + std::to_string(c.current_page) + ": " + c.why);
    EXPECT_EQ(search.Search(c.term, c.direction, c.current_page, pages), c.found);
  }
}

// Blank terms and the messages are seen through the window; here are the rules of each direction.
TEST(BookSearch, FindsTheNearestOtherPageHoldingTheTermInEachDirection) {
  // "owl" on pages 1, 3 and 5, "Search" on page 4, "fox" only on page 2.
  ExpectSearches(
      {"owl ......", "...fox....", "..owl.....", "...Search.", ".....owl..", ".........."},
      {
          {"owl", kForward, 1, 3},
          {"owl", kForward, 2, 3, "the right-hand page of a spread is found"},
          {"owl", kForward, 5, std::nullopt, "nothing after page 5"},
          {"owl", kBackward, 6, 3, "page 5's match starts after its first character"},
          {"owl", kBackward, 2, std::nullopt, "page 1's first character is too short a text"},
          {"sEaRcH", kForward, 1, 4},
          {"fox", kBackward, 2, std::nullopt, "only on the current page"},
      });
}

TEST(BookSearch, BackwardTakesOnlyMatchesEndingByThePreviousPagesFirstCharacter) {
  // "ab|c" over a page boundary: a match ending on page 2's first character counts, later not.
  ExpectSearches({"....ab", "c.....", "......"},
                 {
                     {"abc", kBackward, 3, 1, "ends on page 2's first character"},
                     {"bc.", kBackward, 3, std::nullopt, "ends one character later"},
                     {"abc", kForward, 1, std::nullopt, "starts on page 1, the current page"},
                 });
}

TEST(BookSearch, AMatchOnTheLastPageLeadsToPageOneAsThePageLookupClampsIt) {
  // The page lookup gives 0 for a position on the last page; its callers raise that to 1.
  ExpectSearches({"..........", "..........", "....moth..", ".......lamp"},
                 {{"moth", kForward, 1, 3}, {"lamp", kForward, 2, 1}});
}

}  // namespace
}  // namespace vireo
