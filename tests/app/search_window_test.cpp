// Searching from the real window: the term on the control bar and the
// matches drawn in the highlight colour. Where the moves land is tested
// through the fake window (reader_logic_test).

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "app/reader_window_fixture.h"

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

TEST(SearchWindow, ANewTermRedrawsInPlaceAndABlankOneSearchesNothing) {
  test::ReaderWindow reader(test::NumberedProse(250), kRedMatches);
  reader.Start();
  ASSERT_EQ(reader.logic().current_page(), 2);
  EXPECT_EQ(RedPixels(reader, kLeftPageBox), 0);
  EnterTerm(reader, "paragraph 1 tells");
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 1 tells");
  EXPECT_EQ(reader.logic().current_page(), 2) << "no search is made";
  EXPECT_GT(RedPixels(reader, kLeftPageBox), 100) << "page 1 holds paragraph 1";

  EnterTerm(reader, "");
  EXPECT_EQ(reader.window().bar().lblSearch->text(), "paragraph 1 tells") << "an empty answer";
  EnterTerm(reader, "   ");
  const size_t messages = reader.user().messages.size();
  Press(reader, Qt::Key_N);
  Press(reader, Qt::Key_P);
  test::Trigger(reader, "mnuFindNext");
  EXPECT_EQ(reader.user().messages.size(), messages);
  EXPECT_EQ(reader.logic().current_page(), 2);
}

}  // namespace
}  // namespace vireo
