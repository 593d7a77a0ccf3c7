#pragma once

#include <string_view>

#include "render/surface.h"

namespace vireo {

// Text output on a surface the way a picture box prints: a printed line ends
// by going back to the left edge and one line height down.

// The sample whose height is one line of page text.
inline constexpr std::string_view kLineSample = "hg^,!";

// Ends the current line: CurrentX = 0, CurrentY += the height of one line in
// the current font.
inline void EndLine(Surface& surface) {
  surface.SetCurrentX(0);
  surface.SetCurrentY(surface.CurrentY() + surface.TextHeight(kLineSample));
}

// Draws text at the current position, then ends the line.
inline void PrintLine(Surface& surface, std::string_view text) {
  if (!text.empty()) surface.DrawText(text);
  EndLine(surface);
}

// CurrentX = (surface width - text width) / 2, then PrintLine.
inline void PrintCentred(Surface& surface, std::string_view text) {
  surface.SetCurrentX((surface.ScaleWidth() - surface.TextWidth(text)) / 2);
  PrintLine(surface, text);
}

}  // namespace vireo
