#pragma once

#include <cstdint>
#include <string_view>

#include "book/picture.h"
#include "layout/text_measure.h"

namespace vireo {

// A drawing surface in twips (15 twips = 1 logical pixel): a page buffer on
// screen, the printer, or a test's fixed-width fake. Text is Windows-1252
// bytes. The current position, ink colour and style switches are state of
// the surface, as on a picture box.
class Surface : public TextMeasure {
 public:
  virtual void SetFontName(std::string_view name) = 0;
  virtual void SetFontSize(double points) = 0;
  virtual double FontSize() const = 0;

  virtual bool FontBold() const = 0;
  virtual bool FontItalic() const = 0;
  virtual bool FontUnderline() const = 0;

  // Height of text in the current font and style, in twips (its width is
  // measured through TextMeasure).
  virtual double TextHeight(std::string_view text) const = 0;

  // Size of the drawable area in twips.
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;

  // Draws text with its top-left corner at the current position in the ink
  // colour, transparently over what is there, and advances CurrentX by its
  // width.
  virtual void DrawText(std::string_view text) = 0;

  // Paints the whole surface with the back colour (and texture, if any).
  virtual void Clear() = 0;

  // Draws picture scaled into the rectangle (left, top, width, height), in
  // twips, over what is there. An empty picture draws nothing; so does a
  // surface that only measures.
  virtual void PaintPicture(const Picture& picture, double left, double top, double width,
                            double height) {
    (void)picture, (void)left, (void)top, (void)width, (void)height;
  }

  double CurrentX() const { return current_x_; }
  double CurrentY() const { return current_y_; }
  void SetCurrentX(double twips) { current_x_ = twips; }
  void SetCurrentY(double twips) { current_y_ = twips; }

  // Colours are 0x00BBGGRR.
  uint32_t ForeColor() const { return fore_color_; }
  void SetForeColor(uint32_t bgr) { fore_color_ = bgr; }

 private:
  double current_x_ = 0;
  double current_y_ = 0;
  uint32_t fore_color_ = 0;
};

}  // namespace vireo
