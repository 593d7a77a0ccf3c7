#pragma once

#include <array>
#include <string_view>

namespace vireo {

class Surface;

// Character widths of the book font in its four styles, measured once from a
// surface and then read without touching it. Widths are in the surface's
// units (twips). Module name in the log: "clsFontMetrics".
class clsFontMetrics {
 public:
  static constexpr int kTableSize = 255;  // codes 1..255 at index code - 1

  // Rebuilds the four tables with 1,020 width queries (code 10 is left at 0)
  // and the widest plain character. Leaves the surface bold and italic.
  void MakeArrays(Surface& surface);

  // Width of the first character of text in the style; the widest plain
  // width for a code outside 1..255. Code 0 is an error: logged, 0 returned.
  double CharWidth(bool bold, bool italic, std::string_view text) const;

  // Sum of CharWidth over every character of word; 0 for an empty word.
  double WordWidth(bool bold, bool italic, std::string_view word) const;

  // Fast path for callers that already hold a byte: no error trap, code 0
  // reads as 0.
  double Width(bool bold, bool italic, unsigned char code) const {
    return code == 0 ? 0.0 : Table(bold, italic)[code - 1];
  }

  double widest() const { return widest_; }
  const std::array<double, kTableSize>& Table(bool bold, bool italic) const {
    return tables_[(bold ? 1 : 0) + (italic ? 2 : 0)];
  }
  // For tests and metrics files: sets one table directly.
  void SetTable(bool bold, bool italic, const std::array<double, kTableSize>& widths);

 private:
  void FillTable(Surface& surface, bool bold, bool italic);

  std::array<std::array<double, kTableSize>, 4> tables_{};  // plain, bold, italic, bold-italic
  double widest_ = 0;
};

}  // namespace vireo
