// Searching from the real window: the term on the control bar, Find Next and
// Find Previous, and the matches drawn in the highlight colour.

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "app/window_driving.h"

namespace vireo {
namespace {

using test::Press;

// Black ink on white paper, matches in pure red (0x0000FF is red as 0x00BBGGRR).
constexpr const char* kRedMatches =
    "INKCOLOUR,0\r\nPAPERCOLOUR,16777215\r\nTEXTURENUM,-1\r\nHLCOLOUR,255\r\n"
    "INSTANTPAGETURN,True\r\n";

int RedPixels(test::ReaderWindow& reader, int box) {
  const QImage image = test::BoxPicture(reader, box);
  int red = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor colour(image.pixel(x, y));
      red += colour.red() > 180 && colour.green() < 90 && colour.blue() < 90;
    }
  }
  return red;
}

void EnterTerm(test::ReaderWindow& reader, const std::string& term) {
  reader.user().answer = term;
  reader.window().bar().lblSearch->clicked();
  QApplication::processEvents();
}

// The page that holds the first occurrence of text at or after from (1-based).
int PageOf(test::ReaderWindow& reader, const std::string& text, int32_t from = 1) {
  const size_t found = reader.logic().book_text().find(text, static_cast<size_t>(from - 1));
  const PageIndex& pages = reader.logic().pages();
  for (int p = 1; p < pages.count; ++p) {
    if (pages.PageStart(p + 1) > static_cast<int32_t>(found + 1)) return p;
  }
  return pages.count;
}

size_t NoMoreMatches(test::ReaderWindow& reader) {
  size_t count = 0;
  for (const std::string& message : reader.user().messages) count += message == "No more matches";
  return count;
}

TEST(SearchWindow, ANewTermRedrawsTheSpreadInPlaceWithItsMatchesHighlighted) {
  test::ReaderWindow reader(test::SampleProse(60), kRedMatches);
  reader.Start();
  ASSERT_EQ(reader.logic().current_page(), 2);
  EXPECT_EQ(RedPixels(reader, kLeftPageBox), 0);
  EnterTerm(reader, "paragraph 1 goes");
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 1 goes");
  EXPECT_EQ(reader.user().messages.back(), "Enter the word or words you want to search for");
  EXPECT_EQ(reader.logic().current_page(), 2) << "no search is made";
  EXPECT_GT(RedPixels(reader, kLeftPageBox), 100) << "page 1 holds paragraph 1";

  EnterTerm(reader, "");
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 1 goes") << "an empty answer";
}

TEST(SearchWindow, FindNextAndPreviousTurnToThePagesThatHoldTheTerm) {
  test::ReaderWindow reader(test::SampleProse(60), kRedMatches);
  reader.Start();
  ASSERT_GT(reader.logic().pages().count, 12);
  // Six times in paragraph 30, on one or two pages, and nowhere else.
  const std::string term = "paragraph 30 goes";
  const int first = PageOf(reader, term);
  const int last =
      PageOf(reader, term, static_cast<int32_t>(reader.logic().book_text().rfind(term)) + 1);
  ASSERT_GT(first, 3);
  EnterTerm(reader, "PARAGRAPH 30 GOES");
  reader.window().bar().cmdFindNext->click();
  EXPECT_EQ(reader.logic().current_page(), first);
  EXPECT_GT(RedPixels(reader, kRightPageBox), 100) << "the page found shows the match";
  if (last != first) {
    reader.window().bar().cmdFindNext->click();
    EXPECT_EQ(reader.logic().current_page(), last);
  }
  EXPECT_EQ(NoMoreMatches(reader), 0u);
  reader.window().bar().cmdFindNext->click();
  EXPECT_EQ(reader.logic().current_page(), last);
  EXPECT_EQ(NoMoreMatches(reader), 1u);

  EnterTerm(reader, "sentence 1 of paragraph 2 goes");
  Press(reader, Qt::Key_P);
  EXPECT_EQ(reader.logic().current_page(), PageOf(reader, "Sentence 1 of paragraph 2 goes"));
  Press(reader, Qt::Key_N);
  EXPECT_EQ(NoMoreMatches(reader), 2u) << "the page found was the only one";
}

TEST(SearchWindow, TheEndsOfTheBookSayNoMoreMatches) {
  test::ReaderWindow reader(test::SampleProse(40),
                            std::string(kRedMatches) + "SINGLEPAGEMODE,True\r\n");
  reader.Start();
  EnterTerm(reader, "goes on");
  Press(reader, Qt::Key_P);
  EXPECT_EQ(NoMoreMatches(reader), 1u) << "nothing before page 1";
  EXPECT_EQ(reader.logic().current_page(), 1);

  const int count = reader.logic().pages().count;
  for (int turn = 1; turn < count; ++turn) Press(reader, Qt::Key_Space);
  ASSERT_EQ(reader.logic().current_page(), count);
  Press(reader, Qt::Key_N);
  EXPECT_EQ(NoMoreMatches(reader), 2u) << "nothing after the last page";
  EXPECT_EQ(reader.logic().current_page(), count);
}

TEST(SearchWindow, ABlankTermSearchesNothingAndSaysNothing) {
  test::ReaderWindow reader(test::SampleProse(40), kRedMatches);
  reader.Start();
  EnterTerm(reader, "   ");
  const size_t messages = reader.user().messages.size();
  Press(reader, Qt::Key_N);
  Press(reader, Qt::Key_P);
  reader.window().menu().Item("mnuFindNext")->trigger();
  EXPECT_EQ(reader.user().messages.size(), messages);
  EXPECT_EQ(reader.logic().current_page(), 2);
}

}  // namespace
}  // namespace vireo
