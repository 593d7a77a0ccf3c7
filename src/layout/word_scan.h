#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vireo {

class clsFontMetrics;

// What the paginator needs to know about the bytes of a word, gathered in
// the same pass that sums its width. Internal to the layout folder.
enum ByteClass : uint16_t {
  kLineFeedClass = 1 << 0,      // 10
  kBoldOnClass = 1 << 1,        // 128
  kBoldOffClass = 1 << 2,       // 129
  kItalicOnClass = 1 << 3,      // 130
  kItalicOffClass = 1 << 4,     // 131
  kPageBreakClass = 1 << 5,     // 134
  kUnderlineOnClass = 1 << 6,   // 135
  kUnderlineOffClass = 1 << 7,  // 136
  kBracketClass = 1 << 8,       // '[' (a possible image placeholder)
  kNulClass = 1 << 9,           // 0, outside the width tables
  kBlankClass = 1 << 10,        // ' ' (ends a word)
  kHyphenClass = 1 << 11,       // '-' (may end a word)
};
// The classes remembered for the pieces of a split word: all but the two
// delimiters.
inline constexpr int kByteClassCount = 10;
inline constexpr uint16_t kRememberedClasses = (1 << kByteClassCount) - 1;
inline constexpr uint16_t kDelimiterClasses = kBlankClass | kHyphenClass;
inline constexpr uint16_t kStyleClasses = kBoldOnClass | kBoldOffClass | kItalicOnClass |
                                          kItalicOffClass | kUnderlineOnClass | kUnderlineOffClass;

// The class bits of every byte value.
const std::array<uint16_t, 256>& ByteClasses();

// The four width tables indexed directly by byte (byte 0 reads 0).
class StyleTables {
 public:
  // Fixed-point widths: units of 1/256 twip.
  static constexpr double kUnitsPerTwip = 256;

  // Loads the tables for a text of text_size bytes.
  void Load(const clsFontMetrics& metrics, size_t text_size);
  const double* For(bool bold, bool italic) const { return tables_[Index(bold, italic)].data(); }
  const int64_t* UnitsFor(bool bold, bool italic) const {
    return units_[Index(bold, italic)].data();
  }
  // True when no width is negative or NaN, so that the width of a prefix
  // never shrinks as it grows: long words can then be fitted in one pass.
  bool monotone() const { return monotone_; }
  // True when every width is a whole number of units (as the 1/64 pixel
  // advances of real fonts are) small enough that no sum over the text can
  // round: double sums are then exact, so integer sums in units give the
  // very same values whatever their order.
  bool exact() const { return exact_; }

 private:
  static constexpr int Index(bool bold, bool italic) { return (bold ? 1 : 0) + (italic ? 2 : 0); }
  std::array<std::array<double, 256>, 4> tables_{};
  std::array<std::array<int64_t, 256>, 4> units_{};
  bool monotone_ = true;
  bool exact_ = false;
};

inline double SumWidths(const double* table, std::string_view word) {
  double width = 0;
  for (char c : word) width += table[static_cast<unsigned char>(c)];
  return width;
}

// The remembered classes of the bytes of word.
uint16_t ClassesOf(std::string_view word);

// Which of each style's on and off codes came last in a stretch of text:
// the style is open at its end when the "on" code did. Two bits per style.
class StyleMarks {
 public:
  enum Style { kBold = 0, kItalic = 1, kUnderline = 2 };

  // Scans word backwards for the last on/off code of each style.
  static StyleMarks Of(std::string_view word);

  // Appends other: its marks replace these where it has any.
  void Append(StyleMarks other) {
    uint8_t present = static_cast<uint8_t>((other.bits_ | (other.bits_ >> 1)) & 0x15);
    present = static_cast<uint8_t>(present | (present << 1));
    bits_ = static_cast<uint8_t>((bits_ & ~present) | other.bits_);
  }
  bool Open(Style style) const { return ((bits_ >> (2 * style)) & 3) == kOn; }
  void Clear() { bits_ = 0; }

 private:
  static constexpr uint8_t kOn = 1;
  static constexpr uint8_t kOff = 2;
  uint8_t bits_ = 0;
};

}  // namespace vireo
