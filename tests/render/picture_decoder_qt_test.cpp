#include "render/picture_decoder_qt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

namespace vireo {
namespace {

using ::testing::HasSubstr;

std::string Encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes.toStdString();
}

// A BMP header that declares width x height pixels and carries none.
std::string BmpHeaderOnly(uint32_t width, uint32_t height) {
  std::string bmp = Encoded(QImage(1, 1, QImage::Format_RGB32), "BMP").substr(0, 54);
  for (int i = 0; i < 4; ++i) {
    bmp[18 + i] = static_cast<char>((width >> (8 * i)) & 0xFF);
    bmp[22 + i] = static_cast<char>((height >> (8 * i)) & 0xFF);
  }
  return bmp;
}

TEST(QtPictureDecoder, DecodesPicturesAndRefusesHostileOnes) {
  QImage red(7, 3, QImage::Format_RGB32);
  red.fill(QColor(255, 0, 0));
  const std::string png = Encoded(red, "PNG");
  QtPictureDecoder decoder;
  std::string why;
  const Picture picture = decoder.Decode(png, why);
  ASSERT_EQ(picture.width, 7);
  EXPECT_EQ(picture.height, 3);
  EXPECT_EQ(picture.pixels.at(20), 0xFFFF0000u);
  EXPECT_EQ(ImageOfPicture(picture).pixel(6, 2), 0xFFFF0000u);

  struct Case {
    const char* what;
    std::string bytes;
    const char* why;
  };
  const Case cases[] = {
      {"a picture of 100 megapixels", BmpHeaderOnly(10000, 10000), "too large: 10000 x 10000"},
      {"a truncated picture", png.substr(0, png.size() / 2), "not a picture"},
      {"text", "just some words", "not a picture"},
      {"nothing", "", "not a picture"},
  };
  for (const Case& c : cases) {
    why.clear();
    EXPECT_TRUE(decoder.Decode(c.bytes, why).empty()) << c.what;
    EXPECT_THAT(why, HasSubstr(c.why)) << c.what;
  }
}

}  // namespace
}  // namespace vireo
