// The book on screen, looked at pixel by pixel.

#include "app/main_window.h"

#include <gtest/gtest.h>

#include <QImage>

#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

int Px(double twips) { return static_cast<int>(twips / 15 + 0.5); }

constexpr QRgb kPaper = qRgb(255, 240, 224);  // PAPERCOLOUR 0xE0F0FF
constexpr const char* kPlainPaper = "INKCOLOUR,0\r\nPAPERCOLOUR,14741759\r\nTEXTURENUM,-1\r\n";

// The bounding box of every pixel that is not paper, within rows [top, bottom).
QRect InkBounds(const QImage& image, int top, int bottom) {
  QRect bounds;
  for (int y = std::max(0, top); y < std::min(bottom, image.height()); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != kPaper) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

TEST(BookOnScreen, InkStaysInTheTextAreaAndThePageNumberIsCentredAtTheFoot) {
  test::ReaderWindow reader(test::NumberedProse(120), kPlainPaper);
  reader.Start();
  EXPECT_EQ(reader.window().bar().lblPageNum->text(),
            QString::number(reader.logic().pages().count) + " pages");
  const QImage page = test::BoxPicture(reader, kLeftPageBox);
  const PageTextArea& area = reader.logic().spread().text_area();
  const int band_top = Px(page.height() * 15 - (area.line_height + 45)) - 2;
  ASSERT_GT(band_top, 0);

  const QRect text = InkBounds(page, 0, band_top);
  ASSERT_FALSE(text.isEmpty()) << "the page has text";
  EXPECT_GE(text.left(), Px(area.left_border) - 1);
  EXPECT_LE(text.right(), page.width() - Px(area.right_border) + 1);
  EXPECT_GE(text.top(), Px(area.top_border) - 1);
  EXPECT_LE(text.bottom(), page.height() - Px(area.bottom_border) + Px(area.line_pitch));

  const QRect number = InkBounds(page, band_top, page.height());
  ASSERT_FALSE(number.isEmpty()) << "the page number is drawn";
  EXPECT_NEAR(number.center().x(), page.width() / 2.0, 2.0);
  EXPECT_EQ(page.pixel(2, 2), kPaper) << "paper colour outside the text area";
}

}  // namespace
}  // namespace vireo
