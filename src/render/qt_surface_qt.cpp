#include "render/qt_surface_qt.h"

#include <QPainter>
#include <QString>

#include "support/windows1252.h"

namespace vireo {
namespace {

QString FromWindows1252(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (char c : bytes) {
    text.append(QChar(static_cast<char16_t>(Windows1252ToUnicode(static_cast<uint8_t>(c)))));
  }
  return text;
}

QFont BookFont() {
  QFont font(QStringLiteral("Times New Roman"));
  font.setPointSizeF(12);
  font.setKerning(false);
  font.setStyleStrategy(QFont::PreferNoShaping);
  return font;
}

}  // namespace

QtSurface::QtSurface(int width_pixels, int height_pixels, qreal device_pixel_ratio)
    : own_image_(qRound(width_pixels * device_pixel_ratio),
                 qRound(height_pixels * device_pixel_ratio), QImage::Format_ARGB32_Premultiplied),
      image_(&own_image_),
      font_(BookFont()) {
  own_image_.setDevicePixelRatio(device_pixel_ratio);
  own_image_.fill(ColorFromBgr(back_color_));
}

QtSurface::QtSurface(QImage* image) : image_(image), font_(BookFont()) {
  if (image_->format() != QImage::Format_ARGB32_Premultiplied) {
    *image_ = image_->convertToFormat(QImage::Format_ARGB32_Premultiplied);
  }
}

QColor QtSurface::ColorFromBgr(uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                static_cast<int>((bgr >> 16) & 0xFF));
}

void QtSurface::FontChanged() { metrics_.reset(); }

const QFontMetricsF& QtSurface::Metrics() const {
  // Measured on the image itself so that measuring and drawing use the same
  // resolution.
  if (!metrics_) metrics_.emplace(font_, image_);
  return *metrics_;
}

void QtSurface::SetFontName(std::string_view name) {
  font_.setFamily(FromWindows1252(name));
  FontChanged();
}

void QtSurface::SetFontSize(double points) {
  if (points > 0) font_.setPointSizeF(points);
  FontChanged();
}

void QtSurface::SetFontBold(bool bold) {
  if (font_.bold() == bold) return;
  font_.setBold(bold);
  FontChanged();
}

void QtSurface::SetFontItalic(bool italic) {
  if (font_.italic() == italic) return;
  font_.setItalic(italic);
  FontChanged();
}

void QtSurface::SetFontUnderline(bool underline) {
  if (font_.underline() == underline) return;
  font_.setUnderline(underline);
  FontChanged();
}

double QtSurface::TextWidth(std::string_view text) const {
  return Metrics().horizontalAdvance(FromWindows1252(text)) * kTwipsPerPixel;
}

double QtSurface::TextHeight(std::string_view) const { return Metrics().height() * kTwipsPerPixel; }

double QtSurface::Ascent() const { return Metrics().ascent() * kTwipsPerPixel; }

double QtSurface::ScaleWidth() const {
  return image_->deviceIndependentSize().width() * kTwipsPerPixel;
}

double QtSurface::ScaleHeight() const {
  return image_->deviceIndependentSize().height() * kTwipsPerPixel;
}

void QtSurface::DrawText(std::string_view text) {
  const QString unicode = FromWindows1252(text);
  {
    QPainter painter(image_);
    painter.setFont(font_);
    painter.setPen(ColorFromBgr(ForeColor()));
    const QPointF baseline(CurrentX() / kTwipsPerPixel,
                           CurrentY() / kTwipsPerPixel + Metrics().ascent());
    painter.drawText(baseline, unicode);
  }
  SetCurrentX(CurrentX() + Metrics().horizontalAdvance(unicode) * kTwipsPerPixel);
}

void QtSurface::DrawPicture(const QImage& picture, double x_twips, double y_twips) {
  QPainter painter(image_);
  painter.drawImage(QPointF(x_twips / kTwipsPerPixel, y_twips / kTwipsPerPixel), picture);
}

void QtSurface::Clear() {
  SetCurrentX(0);
  SetCurrentY(0);
  image_->fill(ColorFromBgr(back_color_));
  if (texture_.isNull()) return;
  QPainter painter(image_);
  painter.drawImage(QPointF(0, 0), texture_);
}

}  // namespace vireo
