#include "render/qt_surface_qt.h"

#include "render/picture_decoder_qt.h"

#include <QGlyphRun>

#include <QPainter>
#include <QString>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>

#include "support/windows1252_qt.h"

namespace vireo {
namespace {

QFont BookFont() {
  QFont font(QStringLiteral("Times New Roman"));
  font.setPointSizeF(12);
  font.setKerning(false);
  font.setStyleStrategy(QFont::PreferNoShaping);
  return font;
}

// The 256 Windows-1252 characters in code order.
const QString& Windows1252Characters() {
  static const QString characters = [] {
    std::string codes(256, '\0');
    for (int code = 0; code < 256; ++code) codes[code] = static_cast<char>(code);
    return FromWindows1252(codes);
  }();
  return characters;
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

QtSurface::~QtSurface() = default;

uint32_t QtSurface::BgrFromColor(const QColor& colour) {
  return static_cast<uint32_t>(colour.red()) | static_cast<uint32_t>(colour.green()) << 8 |
         static_cast<uint32_t>(colour.blue()) << 16;
}

QColor QtSurface::ColorFromBgr(uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                static_cast<int>((bgr >> 16) & 0xFF));
}

void QtSurface::FontChanged() { metrics_.reset(); }

// Glyph of every Windows-1252 character in the current style, made once per
// face, size and style and kept (a page switches between the book's size and
// the page number's), with the advances as they are measured: drawing a run
// is then table look-ups and one glyph run, without shaping the text again.
const QtSurface::GlyphTable& QtSurface::Glyphs() const {
  const GlyphKey key{font_.family(), font_.pointSizeF(),
                     (font_.bold() ? 1 : 0) + (font_.italic() ? 2 : 0)};
  auto found = glyph_tables_.find(key);
  if (found != glyph_tables_.end()) return found->second;
  GlyphTable* table = &glyph_tables_[key];
  table->raw = QRawFont::fromFont(font_);
  const QList<quint32> glyphs = table->raw.glyphIndexesForString(Windows1252Characters());
  for (int code = 0; code < 256; ++code) {
    table->glyphs[code] = code < glyphs.size() ? glyphs[code] : 0;
  }
  table->advances.fill(std::numeric_limits<qreal>::quiet_NaN());
  return *table;
}

qreal QtSurface::Advance(const GlyphTable& table, uint8_t code) const {
  qreal& advance = table.advances[code];
  if (std::isnan(advance)) advance = Metrics().horizontalAdvance(Windows1252Characters()[code]);
  return advance;
}

bool QtSurface::GlyphKey::operator<(const GlyphKey& other) const {
  return std::tie(family, points, style) < std::tie(other.family, other.points, other.style);
}

const QFontMetricsF& QtSurface::Metrics() const {
  // Measured on the image itself so that measuring and drawing use the same
  // resolution.
  if (!metrics_) metrics_.emplace(font_, image_);
  return *metrics_;
}

void QtSurface::SetFontName(std::string_view name) {
  const QString family = FromWindows1252(name);
  if (family == font_.family()) return;
  font_.setFamily(family);
  FontChanged();
}

void QtSurface::SetFontSize(double points) {
  if (points <= 0 || points == font_.pointSizeF()) return;
  font_.setPointSizeF(points);
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

// With kerning and shaping off a run is exactly as wide as its characters,
// so widths come from the same advances that place the glyphs.
double QtSurface::TextWidth(std::string_view text) const {
  const GlyphTable& table = Glyphs();
  qreal width = 0;
  for (char c : text) width += Advance(table, static_cast<uint8_t>(c));
  return width * kTwipsPerPixel;
}

double QtSurface::TextHeight(std::string_view) const { return Metrics().height() * kTwipsPerPixel; }

double QtSurface::Ascent() const { return Metrics().ascent() * kTwipsPerPixel; }

double QtSurface::ScaleWidth() const {
  return image_->deviceIndependentSize().width() * kTwipsPerPixel;
}

double QtSurface::ScaleHeight() const {
  return image_->deviceIndependentSize().height() * kTwipsPerPixel;
}

// Runs in one face and colour are gathered with their positions on the
// image and drawn together: a page is then a few glyph runs instead of one
// per word. An underlined run is drawn on its own, so that its line spans
// that run only.
void QtSurface::DrawText(std::string_view text) {
  if (text.empty()) return;
  const GlyphTable& table = Glyphs();
  const QColor colour = ColorFromBgr(ForeColor());
  const bool underline = font_.underline();
  if (pending_.table != &table || pending_.colour != colour || pending_.underline != underline) {
    DrawPendingGlyphs();
  }
  pending_.table = &table;
  pending_.colour = colour;
  pending_.underline = underline;
  const QPointF origin(CurrentX() / kTwipsPerPixel,
                       CurrentY() / kTwipsPerPixel + Metrics().ascent());
  qreal x = 0;
  for (char c : text) {
    const auto code = static_cast<uint8_t>(c);
    pending_.glyphs.append(table.glyphs[code]);
    pending_.positions.append(origin + QPointF(x, 0));
    x += Advance(table, code);
  }
  if (underline) DrawPendingGlyphs();
  SetCurrentX(CurrentX() + x * kTwipsPerPixel);
}

void QtSurface::DrawPendingGlyphs() {
  if (pending_.glyphs.isEmpty()) return;
  QGlyphRun run;
  run.setRawFont(pending_.table->raw);
  run.setGlyphIndexes(pending_.glyphs);
  run.setPositions(pending_.positions);
  run.setUnderline(pending_.underline);
  QPainter& painter = Painter();
  painter.setPen(pending_.colour);
  painter.drawGlyphRun(QPointF(0, 0), run);
  run = QGlyphRun();  // the lists are reused, unshared
  pending_.glyphs.clear();
  pending_.positions.clear();
}

// One painter serves a whole page of runs; it is ended before anything else
// touches the image.
QPainter& QtSurface::Painter() {
  if (!painter_) {
    FinishClear();
    painter_ = std::make_unique<QPainter>(image_);
  }
  return *painter_;
}

void QtSurface::EndPainting() {
  DrawPendingGlyphs();
  painter_.reset();
  FinishClear();
}

void QtSurface::DropDrawing() {
  pending_.glyphs.clear();
  pending_.positions.clear();
  painter_.reset();
  clear_pending_ = false;
}

void QtSurface::DrawPicture(const QImage& picture, double x_twips, double y_twips) {
  DrawPendingGlyphs();
  Painter().drawImage(QPointF(x_twips / kTwipsPerPixel, y_twips / kTwipsPerPixel), picture);
}

void QtSurface::PaintPicture(const Picture& picture, double left, double top, double width,
                             double height) {
  if (picture.empty() || width <= 0 || height <= 0) return;
  DrawPendingGlyphs();
  DrawPictureScaled(Painter(), picture,
                    QRectF(left / kTwipsPerPixel, top / kTwipsPerPixel, width / kTwipsPerPixel,
                           height / kTwipsPerPixel));
}

void QtSurface::Clear() {
  DropDrawing();
  SetCurrentX(0);
  SetCurrentY(0);
  clear_pending_ = true;
  clear_colour_ = back_color_;
  clear_texture_ = texture_;
}

void QtSurface::FinishClear() const {
  if (!clear_pending_) return;
  clear_pending_ = false;
  image_->fill(ColorFromBgr(clear_colour_));
  if (clear_texture_.isNull()) return;
  QPainter painter(image_);
  painter.drawImage(QPointF(0, 0), clear_texture_);
}

}  // namespace vireo
