#pragma once

#include <string_view>

namespace vireo {

// What layout needs to know of a font: the width of text in the current
// style, in the measurer's units (twips for every surface of this program).
// Text is Windows-1252 bytes. Drawing surfaces implement it; layout never
// draws.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;

  virtual void SetFontBold(bool bold) = 0;
  virtual void SetFontItalic(bool italic) = 0;
  virtual void SetFontUnderline(bool underline) = 0;

  // Width of text in the current font and style.
  virtual double TextWidth(std::string_view text) const = 0;
};

}  // namespace vireo
