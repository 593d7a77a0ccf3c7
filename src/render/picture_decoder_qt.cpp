#include "render/picture_decoder_qt.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <cstring>

namespace vireo {
namespace {

constexpr int kAllocationLimitMegabytes = static_cast<int>(kMaxPictureBytes / (1024 * 1024));

std::string SizeText(const QSize& size) {
  return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

}  // namespace

Picture QtPictureDecoder::Decode(std::string_view bytes, std::string& why) const {
  const QByteArray data =
      QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer;
  buffer.setData(data);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setAllocationLimit(kAllocationLimitMegabytes);
  const QSize size = reader.size();
  if (size.isValid()) {
    const int64_t pixels = static_cast<int64_t>(size.width()) * size.height();
    if (pixels > kMaxPicturePixels || pixels * 4 > kMaxPictureBytes) {
      why = "too large: " + SizeText(size);
      return {};
    }
  }
  QImage image;
  if (!reader.read(&image) || image.isNull()) {
    why = "not a picture (" + reader.errorString().toStdString() + ")";
    return {};
  }
  if (static_cast<int64_t>(image.width()) * image.height() > kMaxPicturePixels) {
    why = "too large: " + SizeText(image.size());
    return {};
  }
  image.convertTo(QImage::Format_ARGB32_Premultiplied);
  Picture picture;
  picture.width = image.width();
  picture.height = image.height();
  picture.pixels.resize(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height));
  for (int y = 0; y < picture.height; ++y) {
    std::memcpy(picture.pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(picture.width),
                image.constScanLine(y), static_cast<size_t>(picture.width) * sizeof(uint32_t));
  }
  return picture;
}

void DrawPictureScaled(QPainter& painter, const Picture& picture, const QRectF& rectangle) {
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rectangle, ImageOfPicture(picture));
  painter.restore();
}

QImage ImageOfPicture(const Picture& picture) {
  if (picture.empty()) return {};
  return QImage(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                picture.height, picture.width * static_cast<int>(sizeof(uint32_t)),
                QImage::Format_ARGB32_Premultiplied);
}

}  // namespace vireo
