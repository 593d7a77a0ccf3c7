#pragma once

#include <cstdint>
#include <optional>

#include "render/book_view.h"

namespace vireo {

class Surface;

// Where the language list and its caption go on the hints box, in twips.
struct LanguageListPlacement {
  TwipsRect list;        // lstLanguages
  double caption_right;  // right edge of lblLanguages ("Language:"), 100 twips left of the list
  double caption_top;
  friend bool operator==(const LanguageListPlacement&, const LanguageListPlacement&) = default;
};

// Draws the welcome page shown while no book is loaded: the welcome block
// (greeting, credit line, version, the maker's home page) on `welcome`, and
// the translated hints on `hints`. In single-page mode both are the same
// surface and the hints go below the welcome block at half its height; a
// separate hints box (the left page) is cleared first. ink is the ink
// colour; list_width and list_height are the language list's size. Returns
// where the language list goes, or nullopt when an error (logged as
// "DrawTitlePage", "frmMain") stopped the drawing before it.
std::optional<LanguageListPlacement> DrawTitlePage(Surface& welcome, Surface& hints, uint32_t ink,
                                                   double list_width, double list_height);

}  // namespace vireo
