#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>

#include "render/surface.h"

namespace vireo {

// The drawing surface on a printer (or PDF) page: a page box of
// width x height twips drawn into `target`, an area of the painter's device
// in device units, scaled evenly to fit and centred. Text is drawn as text
// (a PDF keeps its words) and measured in the printer's font at the page's
// scale; text is Windows-1252 bytes. The painter must outlive the surface.
class PrinterSurface : public Surface {
 public:
  PrinterSurface(QPainter& painter, const QRectF& target, double width_twips, double height_twips);

  void SetFontName(std::string_view name) override;
  void SetFontSize(double points) override;
  double FontSize() const override { return points_; }
  void SetFontBold(bool bold) override { font_.setBold(bold); }
  void SetFontItalic(bool italic) override { font_.setItalic(italic); }
  void SetFontUnderline(bool underline) override { font_.setUnderline(underline); }
  bool FontBold() const override { return font_.bold(); }
  bool FontItalic() const override { return font_.italic(); }
  bool FontUnderline() const override { return font_.underline(); }
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  double ScaleWidth() const override { return width_twips_; }
  double ScaleHeight() const override { return height_twips_; }
  void DrawText(std::string_view text) override;
  // Throws RuntimeError 482 when the printer takes no more drawing.
  void PaintPicture(const Picture& picture, double left, double top, double width,
                    double height) override;
  // Paper stays white: nothing to clear.
  void Clear() override {}

 private:
  QPainter& painter_;
  double width_twips_;
  double height_twips_;
  double points_ = 12;
  QFont font_;
};

}  // namespace vireo
