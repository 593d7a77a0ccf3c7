#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QRawFont>
#include <array>
#include <map>
#include <memory>

class QPainter;
#include <cstdint>
#include <optional>

#include "render/surface.h"

namespace vireo {

// The drawing surface on a QImage (ARGB32 premultiplied): the page buffers
// and the composer draw through it. Geometry is in twips, 15 to a logical
// pixel; the image's device pixel ratio maps logical pixels to device ones.
// Text is Windows-1252 bytes. Needs a QGuiApplication.
//
// Widths come from QFontMetricsF::horizontalAdvance; heights from
// QFontMetricsF::height() (ascent + descent, without the leading), which is
// the line step the page composer uses. Kerning and optional shaping are
// off, so a run is exactly as wide as the sum of its characters: text drawn
// in runs lands where the width tables put it.
class QtSurface : public Surface {
 public:
  static constexpr double kTwipsPerPixel = 15;

  // A surface on an image of its own, width x height logical pixels, filled
  // with the back colour (white).
  QtSurface(int width_pixels, int height_pixels, qreal device_pixel_ratio = 1.0);
  // A surface drawing on the caller's image, which must outlive it and be
  // ARGB32 premultiplied (it is converted otherwise).
  explicit QtSurface(QImage* image);
  ~QtSurface() override;
  QtSurface(const QtSurface&) = delete;
  QtSurface& operator=(const QtSurface&) = delete;

  // The image, with every drawing so far finished on it.
  QImage& image() {
    EndPainting();
    return *image_;
  }
  const QImage& image() const {
    FinishClear();
    return *image_;
  }
  // Finishes the drawing in progress (text is drawn through one painter that
  // stays open between runs, and a cleared image gets its paper when it is
  // next used); call before using the image otherwise.
  void EndPainting();
  // Forgets the drawing in progress and a clear not yet made, for an image
  // that is about to be replaced.
  void DropDrawing();

  // Defaults: "Times New Roman", 12 points, plain.
  void SetFontName(std::string_view name) override;
  void SetFontSize(double points) override;
  double FontSize() const override { return font_.pointSizeF(); }
  void SetFontBold(bool bold) override;
  void SetFontItalic(bool italic) override;
  void SetFontUnderline(bool underline) override;
  bool FontBold() const override { return font_.bold(); }
  bool FontItalic() const override { return font_.italic(); }
  bool FontUnderline() const override { return font_.underline(); }
  const QFont& font() const { return font_; }

  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  // Distance from the top of a line to its baseline, in twips.
  double Ascent() const;

  double ScaleWidth() const override;
  double ScaleHeight() const override;

  // Draws text transparently with the top of its line at (CurrentX,
  // CurrentY) in the ink colour, then advances CurrentX by TextWidth(text).
  void DrawText(std::string_view text) override;

  // Draws picture unscaled (in logical pixels) with its top-left corner at
  // x, y twips.
  void DrawPicture(const QImage& picture, double x_twips, double y_twips);
  void PaintPicture(const Picture& picture, double left, double top, double width,
                    double height) override;

  // Fills the surface with the back colour, then draws the texture, if any,
  // once at the top-left corner, unscaled and not tiled. The current
  // position returns to 0, 0 as on a cleared picture box.
  void Clear() override;
  void SetBackColor(uint32_t bgr) { back_color_ = bgr; }
  uint32_t BackColor() const { return back_color_; }
  void SetTexture(const QImage& texture) { texture_ = texture; }
  void ClearTexture() { texture_ = QImage(); }

  // 0x00BBGGRR as a Qt colour.
  static QColor ColorFromBgr(uint32_t bgr);
  // A Qt colour as 0x00BBGGRR.
  static uint32_t BgrFromColor(const QColor& colour);

 private:
  struct GlyphTable {
    QRawFont raw;
    // Filled whole when the table is made.
    std::array<quint32, 256> glyphs;
    // Logical pixels; each measured when first asked for (NaN until then):
    // measuring loads the glyph, and a title page or a page number uses a
    // few of the 256 characters in each of its sizes.
    mutable std::array<qreal, 256> advances;
  };
  void FontChanged();
  const GlyphTable& Glyphs() const;
  // The advance of code in table, which is the current font's.
  qreal Advance(const GlyphTable& table, uint8_t code) const;
  QPainter& Painter();
  void DrawPendingGlyphs();
  const QFontMetricsF& Metrics() const;

  QImage own_image_;
  QImage* image_;
  QFont font_;
  mutable std::optional<QFontMetricsF> metrics_;
  uint32_t back_color_ = 0x00FFFFFF;
  QImage texture_;
  struct GlyphKey {
    QString family;
    qreal points;
    int style;  // bold + 2 x italic
    bool operator<(const GlyphKey& other) const;
  };
  mutable std::map<GlyphKey, GlyphTable> glyph_tables_;
  std::unique_ptr<QPainter> painter_;
  // A clear waits until the image is next drawn on or used: the page
  // buffers are cleared many times (start-up, layout, every turn's refill)
  // for each time their paper is seen. Colour and texture are those of the
  // moment of the clear.
  void FinishClear() const;
  mutable bool clear_pending_ = false;
  uint32_t clear_colour_ = 0;
  QImage clear_texture_;
  // Text drawn but not yet on the image (see DrawText).
  struct PendingGlyphs {
    const GlyphTable* table = nullptr;
    QColor colour;
    bool underline = false;
    QList<quint32> glyphs;
    QList<QPointF> positions;
  };
  PendingGlyphs pending_;
};

}  // namespace vireo
