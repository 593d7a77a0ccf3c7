#include "layout/word_scan.h"

#include "layout/font_metrics.h"

#include <algorithm>
#include <cmath>

namespace vireo {
namespace {

constexpr std::array<uint16_t, 256> MakeByteClasses() {
  std::array<uint16_t, 256> classes{};
  classes[0] = kNulClass;
  classes[10] = kLineFeedClass;
  classes['['] = kBracketClass;
  classes[' '] = kBlankClass;
  classes['-'] = kHyphenClass;
  classes[128] = kBoldOnClass;
  classes[129] = kBoldOffClass;
  classes[130] = kItalicOnClass;
  classes[131] = kItalicOffClass;
  classes[134] = kPageBreakClass;
  classes[135] = kUnderlineOnClass;
  classes[136] = kUnderlineOffClass;
  return classes;
}

constexpr std::array<uint16_t, 256> kByteClasses = MakeByteClasses();

}  // namespace

const std::array<uint16_t, 256>& ByteClasses() { return kByteClasses; }

uint16_t ClassesOf(std::string_view word) {
  uint16_t classes = 0;
  for (char c : word) classes |= kByteClasses[static_cast<unsigned char>(c)];
  return static_cast<uint16_t>(classes & kRememberedClasses);
}

void StyleTables::Load(const clsFontMetrics& metrics, size_t text_size) {
  monotone_ = true;
  exact_ = true;
  double largest = 0;
  for (int style = 0; style < 4; ++style) {
    const auto& source = metrics.Table((style & 1) != 0, (style & 2) != 0);
    auto& table = tables_[style];
    table[0] = 0;
    units_[style][0] = 0;
    for (int code = 1; code < 256; ++code) {
      const double width = source[code - 1];
      table[code] = width;
      if (!(width >= 0)) monotone_ = false;
      const double units = width * kUnitsPerTwip;
      if (!std::isfinite(units) || units != std::floor(units) || std::fabs(units) > 0x1p40) {
        exact_ = false;
        units_[style][code] = 0;
        continue;
      }
      units_[style][code] = static_cast<int64_t>(units);
      largest = std::max(largest, std::fabs(units));
    }
  }
  // Every sum the paginator makes covers at most the text and what image
  // placeholders insert into it; below 2^52 units it is exact in a double.
  const double longest = static_cast<double>(text_size) + 0x1p24;
  if (largest * longest >= 0x1p52) exact_ = false;
}

StyleMarks StyleMarks::Of(std::string_view word) {
  StyleMarks marks;
  uint8_t found = 0;  // one bit per style already decided
  for (size_t i = word.size(); i-- > 0 && found != 7;) {
    int style = -1;
    uint8_t mark = 0;
    switch (static_cast<unsigned char>(word[i])) {
      case 128:
        style = kBold, mark = kOn;
        break;
      case 129:
        style = kBold, mark = kOff;
        break;
      case 130:
        style = kItalic, mark = kOn;
        break;
      case 131:
        style = kItalic, mark = kOff;
        break;
      case 135:
        style = kUnderline, mark = kOn;
        break;
      case 136:
        style = kUnderline, mark = kOff;
        break;
      default:
        continue;
    }
    if ((found & (1 << style)) != 0) continue;
    found = static_cast<uint8_t>(found | (1 << style));
    marks.bits_ = static_cast<uint8_t>(marks.bits_ | (mark << (2 * style)));
  }
  return marks;
}

}  // namespace vireo
