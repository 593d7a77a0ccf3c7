#include "render/qt_surface_qt.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QRect>

namespace vireo {
namespace {

// A surface with its own image of 400 x 200 pixels, in the book font.
class QtSurfaceTest : public testing::Test {
 protected:
  QtSurfaceTest() {
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(12);
  }
  QtSurface surface{400, 200};
};

// The bounding box of every pixel that is not the back colour.
QRect InkBounds(const QImage& image, QRgb back) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != back) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

TEST_F(QtSurfaceTest, TheBookFontHasItsMetricTwinsWidthsInTwipsWithoutKerning) {
  EXPECT_EQ(QFontInfo(surface.font()).family(), "Liberation Serif");
  // No kerning: "AV" is exactly "A" plus "V".
  EXPECT_DOUBLE_EQ(surface.TextWidth("AV"), surface.TextWidth("A") + surface.TextWidth("V"));
  // 12 points at 96 dpi is 16 pixels: an em dash (code 151) is one em.
  EXPECT_NEAR(surface.TextWidth("\x97"), 16 * 15, 15);
}

TEST_F(QtSurfaceTest, TextIsDrawnWithinItsLineAndMovesThePenOn) {
  surface.SetBackColor(0x00FFFFFF);
  surface.Clear();
  surface.SetCurrentX(300);
  surface.SetCurrentY(450);
  surface.DrawText("Hello");
  const double width = surface.TextWidth("Hello");
  EXPECT_DOUBLE_EQ(surface.CurrentX(), 300 + width);

  const QRect ink = InkBounds(surface.image(), qRgb(255, 255, 255));
  ASSERT_FALSE(ink.isNull());
  const QRect line(20, 30, static_cast<int>(width / 15) + 1,
                   static_cast<int>(surface.TextHeight("") / 15));
  EXPECT_TRUE(line.adjusted(-1, -1, 1, 1).contains(ink)) << "ink outside the line box";
  EXPECT_GT(ink.width(), line.width() / 2);
}

// Runs are drawn together, yet each keeps its colour and its underline stops at its end.
TEST_F(QtSurfaceTest, RunsKeepTheirColoursAndTheirOwnUnderlines) {
  surface.Clear();
  surface.SetForeColor(0x000000FF);  // red
  surface.DrawText("MMM");
  surface.SetForeColor(0x00FF0000);  // blue
  surface.DrawText("MMM");
  surface.SetForeColor(0);
  surface.SetFontUnderline(true);
  surface.SetCurrentX(0);
  surface.SetCurrentY(600);
  surface.DrawText("MM");
  const int gap = static_cast<int>(surface.CurrentX() / 15) + 30;
  surface.SetCurrentX(surface.CurrentX() + 900);
  surface.DrawText("MM");

  const QImage& image = surface.image();
  const auto ink = [&](int x, int y, int width) {
    return InkBounds(image.copy(x, y, width, 30), qRgb(255, 255, 255)).translated(x, y);
  };
  const int third = static_cast<int>(surface.TextWidth("MMM") / 15);
  const QRect red_word = ink(0, 0, third), blue_word = ink(third, 0, third);
  ASSERT_FALSE(red_word.isNull() || blue_word.isNull());
  EXPECT_GT(image.pixelColor(red_word.center()).red(), 200);
  EXPECT_GT(image.pixelColor(blue_word.center()).blue(), 200);
  EXPECT_TRUE(ink(gap, 40, 20).isNull()) << "underline across the gap";
  EXPECT_FALSE(ink(5, 40, 20).isNull());
}

TEST(QtSurface, ClearPaintsTheBackColourAndTheTextureOnceUnscaledAndTextLeavesThemShowing) {
  QImage page(40, 40, QImage::Format_RGB32);
  QtSurface surface(&page);  // drawing on the caller's image, in the book font
  QImage texture(10, 10, QImage::Format_ARGB32_Premultiplied);
  texture.fill(QColor(0, 0, 255));
  surface.SetBackColor(0x0000FF00);
  surface.SetTexture(texture);
  surface.SetCurrentX(99);
  surface.Clear();
  EXPECT_EQ(surface.CurrentX(), 0);
  surface.SetCurrentY(0);
  surface.DrawText("i");
  ASSERT_EQ(&surface.image(), &page);  // and the text is on it
  EXPECT_EQ(page.pixelColor(0, 0), QColor(0, 0, 255)) << "no box painted behind the text";
  EXPECT_EQ(page.pixelColor(9, 9), QColor(0, 0, 255));
  EXPECT_EQ(page.pixelColor(10, 10), QColor(0, 255, 0));
  EXPECT_EQ(page.pixelColor(35, 5), QColor(0, 255, 0));
}

TEST(QtSurface, GeometryIsInTwipsOfLogicalPixels) {
  QtSurface surface(200, 100, 2.0);
  EXPECT_EQ(surface.image().width(), 400);
  EXPECT_DOUBLE_EQ(surface.ScaleWidth(), 3000);
  EXPECT_DOUBLE_EQ(surface.ScaleHeight(), 1500);
}

}  // namespace
}  // namespace vireo
