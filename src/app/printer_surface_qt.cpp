#include "app/printer_surface_qt.h"

#include <QFontMetricsF>
#include <algorithm>

#include "app/interaction_qt.h"
#include "render/picture_decoder_qt.h"
#include "render/qt_surface_qt.h"
#include "support/runtime_error.h"

namespace vireo {
namespace {

// Twips per point: the painter works in twips, so a font of p points is
// 20 p units tall.
constexpr double kTwipsPerPoint = 20;

}  // namespace

PrinterSurface::PrinterSurface(QPainter& painter, const QRectF& target, double width_twips,
                               double height_twips)
    : painter_(painter), width_twips_(width_twips), height_twips_(height_twips) {
  const double scale = std::min(target.width() / width_twips, target.height() / height_twips);
  painter_.resetTransform();
  painter_.translate(target.x() + (target.width() - width_twips * scale) / 2,
                     target.y() + (target.height() - height_twips * scale) / 2);
  painter_.scale(scale, scale);
  font_.setFamily("Times New Roman");
  font_.setKerning(false);
  SetFontSize(points_);
}

void PrinterSurface::SetFontName(std::string_view name) {
  font_.setFamily(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
}

void PrinterSurface::SetFontSize(double points) {
  points_ = points;
  font_.setPixelSize(std::max(1, static_cast<int>(points * kTwipsPerPoint + 0.5)));
}

double PrinterSurface::TextWidth(std::string_view text) const {
  return QFontMetricsF(font_).horizontalAdvance(FromWindows1252(text));
}

double PrinterSurface::TextHeight(std::string_view) const { return QFontMetricsF(font_).height(); }

void PrinterSurface::DrawText(std::string_view text) {
  const QString line = FromWindows1252(text);
  painter_.setFont(font_);
  painter_.setPen(QtSurface::ColorFromBgr(ForeColor()));
  painter_.drawText(QPointF(CurrentX(), CurrentY() + QFontMetricsF(font_).ascent()), line);
  SetCurrentX(CurrentX() + QFontMetricsF(font_).horizontalAdvance(line));
}

void PrinterSurface::PaintPicture(const Picture& picture, double left, double top, double width,
                                  double height) {
  if (picture.empty() || width <= 0 || height <= 0) return;
  Require(painter_.isActive(), ErrorNumber::kPrinterError);
  DrawPictureScaled(painter_, picture, QRectF(left, top, width, height));
}

}  // namespace vireo
