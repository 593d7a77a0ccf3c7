// Searching a book page by page, on a hand-built page index.

#include "nav/search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vireo {
namespace {

// A book whose pages are the given texts, one after another, with the page
// index pointing at the first character of each.
struct PagedBook {
  explicit PagedBook(const std::vector<std::string>& page_texts) {
    int32_t position = 1;
    pages.count = static_cast<int32_t>(page_texts.size());
    for (size_t p = 0; p < page_texts.size(); ++p) {
      pages.SetPageStart(static_cast<int32_t>(p + 1), position);
      text += page_texts[p];
      position += static_cast<int32_t>(page_texts[p].size());
    }
    search.SetText(text);
  }
  std::optional<int> Next(std::string_view term, int current) const {
    return search.Search(term, SearchDirection::kForward, current, pages);
  }
  std::optional<int> Previous(std::string_view term, int current) const {
    return search.Search(term, SearchDirection::kBackward, current, pages);
  }

  std::string text;
  PageIndex pages;
  BookSearch search;
};

// Six pages of ten characters; "owl" on pages 1, 3 and 5, "Search" only on
// page 4 (mixed case), "fox" only on page 2.
const PagedBook& Book() {
  static const PagedBook book(
      {"owl ......", "...fox....", "..owl.....", "...Search.", ".....owl..", ".........."});
  return book;
}

TEST(BookSearch, ForwardFindsTheNextPageWithTheTermAndNeverTheCurrentOne) {
  EXPECT_EQ(Book().Next("owl", 1), 3);
  EXPECT_EQ(Book().Next("owl", 2), 3) << "the right-hand page of a spread is found";
  EXPECT_EQ(Book().Next("owl", 3), 5);
  EXPECT_EQ(Book().Next("owl", 5), std::nullopt) << "nothing after page 5";
}

TEST(BookSearch, BackwardFindsTheNearestEarlierPage) {
  EXPECT_EQ(Book().Previous("owl", 6), 3) << "page 5's match starts after its first character";
  EXPECT_EQ(Book().Previous("owl", 4), 1) << "page 3's match starts after its first character";
  EXPECT_EQ(Book().Previous("owl", 2), std::nullopt)
      << "only page 1's first character is searched, too short for the match there";
  EXPECT_EQ(Book().Previous("owl", 1), std::nullopt);
}

TEST(BookSearch, CaseDoesNotMatter) {
  for (const char* term : {"Search", "SEARCH", "search", "sEaRcH"}) {
    EXPECT_EQ(Book().Next(term, 1), 4) << term;
    EXPECT_EQ(Book().Previous(term, 6), 4) << term;
  }
}

TEST(BookSearch, ATermOnlyOnTheCurrentPageIsNotFoundEitherWay) {
  EXPECT_EQ(Book().Next("fox", 2), std::nullopt);
  EXPECT_EQ(Book().Previous("fox", 2), std::nullopt);
  EXPECT_EQ(Book().Next("Search", 4), std::nullopt);
  EXPECT_EQ(Book().Previous("Search", 4), std::nullopt);
}

TEST(BookSearch, TheLastPageAndTheFirstPageEndTheirDirections) {
  EXPECT_EQ(Book().Next("owl", 6), std::nullopt);
  EXPECT_EQ(Book().Next(".", 6), std::nullopt) << "a term everywhere, from the last page";
  EXPECT_EQ(Book().Previous(".", 1), std::nullopt) << "a term everywhere, from page 1";
  EXPECT_EQ(Book().Next("", 1), std::nullopt);
}

TEST(BookSearch, BackwardTakesOnlyMatchesEndingByThePreviousPagesFirstCharacter) {
  // "ab|cd" over a page boundary: a match that ends exactly on the first
  // character of page 2 counts (on page 1), one that starts there does not.
  const PagedBook book({"....ab", "c.....", "......"});
  EXPECT_EQ(book.Previous("abc", 3), 1) << "ends on page 2's first character";
  EXPECT_EQ(book.Previous("bc.", 3), std::nullopt) << "ends one character later";
  EXPECT_EQ(book.Next("abc", 1), std::nullopt) << "starts on page 1, the current page";
}

TEST(BookSearch, AMatchOnTheLastPageLeadsToPageOneAsThePageLookupClampsIt) {
  // The page lookup gives 0 for a position on the last page, and its callers
  // raise that to page 1.
  const PagedBook book({"..........", "..........", "....moth..", ".......lamp"});
  EXPECT_EQ(book.Next("moth", 1), 3);
  EXPECT_EQ(book.Next("lamp", 2), 1);
}

}  // namespace
}  // namespace vireo
