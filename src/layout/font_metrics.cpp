#include "layout/font_metrics.h"

#include <utility>

#include "layout/text_measure.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsFontMetrics";
constexpr int kLineFeedIndex = 10 - 1;

}  // namespace

void clsFontMetrics::FillTable(TextMeasure& surface, bool bold, bool italic) {
  surface.SetFontBold(bold);
  surface.SetFontItalic(italic);
  surface.SetFontUnderline(false);
  auto& table = tables_[TableIndex(bold, italic)];
  for (int code = 1; code <= kTableSize; ++code) {
    if (code == 10) continue;
    const char c = static_cast<char>(code);
    table[code - 1] = surface.TextWidth(std::string_view(&c, 1));
  }
  table[kLineFeedIndex] = 0;
}

void clsFontMetrics::UpdateWidest() {
  // Starts from 0 and takes only strictly greater values, code 10 included.
  widest_ = 0;
  for (double width : tables_[0]) {
    if (width > widest_) widest_ = width;
  }
}

StylesUsed StylesUsed::In(std::string_view text) {
  return {text.find('\x80') != std::string_view::npos, text.find('\x82') != std::string_view::npos};
}

void clsFontMetrics::MakeArrays(TextMeasure& surface, StylesUsed used) {
  Trap("sub makearrays", kModule, [&] {
    widest_ = 0;
    FillTable(surface, false, false);
    UpdateWidest();
    for (const auto& [bold, italic] : {std::pair{true, false}, {false, true}, {true, true}}) {
      if (used.Reads(bold, italic)) {
        FillTable(surface, bold, italic);
      } else {
        tables_[TableIndex(bold, italic)].fill(0);
      }
    }
    surface.SetFontBold(true);
    surface.SetFontItalic(true);
  });
}

double clsFontMetrics::CharWidth(bool bold, bool italic, std::string_view text) const {
  double width = 0;
  Trap("function charwidth", kModule, [&] {
    Require(!text.empty(), ErrorNumber::kInvalidProcedureCall);
    const int code = static_cast<unsigned char>(text[0]);
    Require(code >= 1, ErrorNumber::kSubscriptOutOfRange);
    width = Table(bold, italic)[code - 1];
  });
  return width;
}

double clsFontMetrics::WordWidth(bool bold, bool italic, std::string_view word) const {
  double width = 0;
  Trap("function wordwidth", kModule, [&] {
    const auto& table = Table(bold, italic);
    for (char c : word) {
      const auto code = static_cast<unsigned char>(c);
      // Code 0 goes through CharWidth so that its error is logged; it adds 0.
      width += code == 0 ? CharWidth(bold, italic, std::string_view(&c, 1)) : table[code - 1];
    }
  });
  return width;
}

void clsFontMetrics::SetTable(bool bold, bool italic,
                              const std::array<double, kTableSize>& widths) {
  auto& table = tables_[TableIndex(bold, italic)];
  table = widths;
  table[kLineFeedIndex] = 0;
  if (!bold && !italic) UpdateWidest();
}

}  // namespace vireo
