#include "layout/font_metrics.h"

#include <algorithm>

#include "render/surface.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsFontMetrics";

}  // namespace

void clsFontMetrics::FillTable(Surface& surface, bool bold, bool italic) {
  surface.SetFontBold(bold);
  surface.SetFontItalic(italic);
  surface.SetFontUnderline(false);
  auto& table = tables_[(bold ? 1 : 0) + (italic ? 2 : 0)];
  for (int code = 1; code <= kTableSize; ++code) {
    if (code != 10) {
      const char c = static_cast<char>(code);
      table[code - 1] = surface.TextWidth(std::string_view(&c, 1));
    }
    // The widest character comes from the plain table only.
    if (!bold && !italic && table[code - 1] > widest_) widest_ = table[code - 1];
  }
}

void clsFontMetrics::MakeArrays(Surface& surface) {
  Trap("sub makearrays", kModule, [&] {
    widest_ = 0;
    FillTable(surface, false, false);
    FillTable(surface, true, false);
    FillTable(surface, false, true);
    FillTable(surface, true, true);
  });
}

double clsFontMetrics::CharWidth(bool bold, bool italic, std::string_view text) const {
  double width = 0;
  Trap("function charwidth", kModule, [&] {
    const int code = text.empty() ? 0 : static_cast<unsigned char>(text[0]);
    if (code > kTableSize) {
      width = widest_;
      return;
    }
    Require(code >= 1, ErrorNumber::kSubscriptOutOfRange);
    width = Table(bold, italic)[code - 1];
  });
  return width;
}

double clsFontMetrics::WordWidth(bool bold, bool italic, std::string_view word) const {
  double width = 0;
  Trap("function wordwidth", kModule, [&] {
    for (size_t i = 0; i < word.size(); ++i) width += CharWidth(bold, italic, word.substr(i, 1));
  });
  return width;
}

void clsFontMetrics::SetTable(bool bold, bool italic,
                              const std::array<double, kTableSize>& widths) {
  tables_[(bold ? 1 : 0) + (italic ? 2 : 0)] = widths;
  if (!bold && !italic) widest_ = *std::max_element(widths.begin(), widths.end());
}

}  // namespace vireo
