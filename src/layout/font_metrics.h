#pragma once

#include <array>
#include <string_view>

namespace vireo {

class TextMeasure;

// Which styled tables a text can read. A style is only ever switched on by
// its code in the text (128 bold, 130 italic), so a text without the code
// never reads that style's table, nor bold-italic without both.
struct StylesUsed {
  bool bold = true;
  bool italic = true;

  static StylesUsed In(std::string_view text);
  // Whether such a text reads the table of that style.
  bool Reads(bool bold_table, bool italic_table) const {
    return (!bold_table || bold) && (!italic_table || italic);
  }
  bool Covers(StylesUsed other) const { return Reads(other.bold, other.italic); }
};

// Character widths of the book font in its four styles, measured once from a
// surface and then read without touching it. Widths are in the surface's
// units (twips for every surface of this program); nothing is converted.
// Characters are Windows-1252 bytes. Module name in the log: "clsFontMetrics".
class clsFontMetrics {
 public:
  static constexpr int kTableSize = 255;  // codes 1..255 at index code - 1

  // Rebuilds the four tables with 1,020 width queries (code 10, the line
  // feed, is never measured and stays 0) and the widest plain character.
  // With `used`, the tables of styles outside it are left all 0 unmeasured:
  // each query loads a glyph, and most books are never bold or italic.
  // The surface is left bold and italic, underline off: callers set the
  // style they want before drawing.
  void MakeArrays(TextMeasure& measure, StylesUsed used = {});

  // Width of the first character of text in the style. Code 0 (and an empty
  // text) falls outside the tables: the error is logged under
  // "function charwidth" and 0 is returned.
  double CharWidth(bool bold, bool italic, std::string_view text) const;

  // Sum of CharWidth over every character of word, left to right in double
  // precision; 0 for an empty word. Tag characters are measured like any
  // other character.
  double WordWidth(bool bold, bool italic, std::string_view word) const;

  // Fast path for callers that already hold a byte: no error trap, code 0
  // reads as 0 without a log entry.
  double Width(bool bold, bool italic, unsigned char code) const {
    return code == 0 ? 0.0 : Table(bold, italic)[code - 1];
  }

  // The widest plain character (never a styled one); 0 before any table.
  double widest() const { return widest_; }

  const std::array<double, kTableSize>& Table(bool bold, bool italic) const {
    return tables_[TableIndex(bold, italic)];
  }

  // Sets one table directly (metrics files, tests). The entry of code 10 is
  // ignored and kept 0, as a line feed has no width. Setting the plain
  // table recomputes the widest character as MakeArrays does.
  void SetTable(bool bold, bool italic, const std::array<double, kTableSize>& widths);

 private:
  static constexpr int TableIndex(bool bold, bool italic) {
    return (bold ? 1 : 0) + (italic ? 2 : 0);
  }
  void FillTable(TextMeasure& measure, bool bold, bool italic);
  void UpdateWidest();

  std::array<std::array<double, kTableSize>, 4> tables_{};  // plain, bold, italic, bold-italic
  double widest_ = 0;
};

}  // namespace vireo
