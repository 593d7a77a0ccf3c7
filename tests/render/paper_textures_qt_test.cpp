#include "render/paper_textures_qt.h"

#include <gtest/gtest.h>

#include <QColor>

#include "test_support.h"

namespace vireo {
namespace {

// The part decoded for a page is the page's corner of the whole picture,
// pixel for pixel, and grows when a bigger page asks for it.
TEST(PaperTextures, APageGetsTheCornerOfThePictureDecodedAsFarAsItNeeds) {
  test::TempFolder folder;
  const QString path = QString::fromStdString(folder.File("paper.jpg"));
  QImage picture(300, 200, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) picture.setPixel(x, y, qRgb(x % 256, y, (x * y) % 251));
  }
  ASSERT_TRUE(picture.save(path, "JPG"));
  const QImage whole(path);
  PaperTextures papers;
  ASSERT_TRUE(papers.SetFile(2, path));
  EXPECT_LT(papers.Covering(2, {50, 40}).width(), whole.width());  // not decoded whole
  for (const QSize page : {QSize(50, 40), QSize(130, 90), QSize(1000, 1000)}) {
    const QImage part = papers.Covering(2, page);
    ASSERT_GE(part.width(), std::min(page.width(), whole.width()));
    ASSERT_GE(part.height(), std::min(page.height(), whole.height()));
    EXPECT_EQ(part.convertToFormat(whole.format()), whole.copy(part.rect())) << page.width();
  }
  EXPECT_FALSE(papers.SetFile(1, QString::fromStdString(folder.File("none.jpg"))));
  EXPECT_TRUE(papers.Covering(1, {10, 10}).isNull());
  EXPECT_TRUE(papers.Covering(3, {10, 10}).isNull());
}

}  // namespace
}  // namespace vireo
