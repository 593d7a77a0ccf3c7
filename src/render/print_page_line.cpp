// NewPrintLine and CalcSlice: one composed line drawn onto the target,
// centred or justified, with style codes switching the font and the search
// term in the highlight colour.

#include <algorithm>
#include <optional>

#include "layout/font_metrics.h"
#include "render/print_page.h"
#include "render/print_page_text.h"
#include "render/surface.h"
#include "render/surface_text.h"
#include "support/checked_int16.h"
#include "vhtml/cp1252_case.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsPrintPage";
constexpr char kCentre = '\x84';
// The search box shows this prompt while no term has been entered.
constexpr std::string_view kSearchPrompt = "Search Term";
// A line at least this full is justified.
constexpr double kJustifyFraction = 0.7;

struct TextStyle {
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// Applies a style code to style; false when code is not one.
bool SwitchStyle(unsigned char code, TextStyle& style) {
  switch (code) {
    case 0x80:
      style.bold = true;
      return true;
    case 0x81:
      style.bold = false;
      return true;
    case 0x82:
      style.italic = true;
      return true;
    case 0x83:
      style.italic = false;
      return true;
    case 0x87:
      style.underline = true;
      return true;
    case 0x88:
      style.underline = false;
      return true;
    default:
      return false;
  }
}

std::string UpperCased(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = UpperCase1252(c);
  return upper;
}

// The occurrences of a term in a line, found without regard to case, one
// after another.
class MatchFinder {
 public:
  MatchFinder(std::string_view line, std::string_view term)
      : line_(UpperCased(line)), term_(UpperCased(term)) {}
  // First match at or after index, or npos.
  size_t Find(size_t index) const { return line_.find(term_, index); }
  size_t length() const { return term_.size(); }

 private:
  std::string line_;
  std::string term_;
};

}  // namespace

double clsPrintPage::DrawnWidth(std::string_view text) const {
  TextStyle style{target_->FontBold(), target_->FontItalic(), false};
  double width = 0;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (SwitchStyle(code, style) || code == static_cast<unsigned char>(kCentre)) continue;
    width += metrics_ != nullptr ? metrics_->Width(style.bold, style.italic, code)
                                 : GlyphWidth(style.bold, style.italic, code);
  }
  return width;
}

double clsPrintPage::CalcSlice(double current_x, std::string_view rest, double line_width,
                               double left) {
  double slice = 0;
  Trap("function calcslice", kModule, [&] {
    Require(target_ != nullptr, ErrorNumber::kObjectNotSet);
    // The rest is measured as it will be drawn, so that the last word ends
    // exactly on the right edge.
    const double gap = left + line_width - current_x - DrawnWidth(rest);
    const auto spaces = std::count(rest.begin(), rest.end(), ' ');
    slice = spaces == 0 ? 0 : gap / static_cast<double>(spaces);
  });
  return slice;
}

void clsPrintPage::NewPrintLine(const PageSettings& settings, std::string line) {
  uint32_t ink = 0;
  Trap("sub newprintline", kModule, [&] {
    Require(target_ != nullptr, ErrorNumber::kObjectNotSet);
    Surface& target = *target_;
    ink = target.ForeColor();
    if (!indented_) EraseAll(line, "   ");
    bool justify = justify_;
    const Int16 measured = Int16::FromDouble(target.TextWidth(TrimSpaces(line)));
    const bool centred = line.find(kCentre) != std::string::npos;
    if (centred) {
      justify = false;
      EraseChars(line, std::string_view(&kCentre, 1));
      line = std::string(TrimSpaces(line));
    } else if (!line.empty() && line.back() == '\n') {
      justify = false;  // the last line of a paragraph
    } else if (kJustifyFraction * settings.line_width > measured) {
      justify = false;
    }
    EraseChars(line, "\n\r");
    double slice = 0;
    if (centred) {
      target.SetCurrentX(settings.left +
                         (settings.line_width - target.TextWidth(Cleaned(line))) / 2);
    } else {
      line = std::string(RightTrimSpaces(line));
      if (justify) slice = CalcSlice(target.CurrentX(), line, settings.line_width, settings.left);
    }
    // Text is drawn transparently over the paper: the surface's DrawText
    // never paints a background.
    DrawLineText(settings, line, justify, slice);
  });
  if (target_ == nullptr) return;
  Trap("sub newprintline", kModule, [&] {
    EndLine(*target_);
    target_->SetForeColor(ink);
  });
}

void clsPrintPage::DrawLineText(const PageSettings& settings, std::string_view line, bool justify,
                                double slice) {
  Surface& target = *target_;
  const uint32_t ink = target.ForeColor();
  const std::string_view term = search_term_;
  const bool highlight = !printing_ && settings.target == PageTarget::kScreen &&
                         !TrimSpaces(term).empty() && TrimSpaces(term) != kSearchPrompt;
  std::optional<MatchFinder> matches;
  size_t match_start = std::string_view::npos;
  if (highlight) {
    matches.emplace(line, term);
    match_start = matches->Find(0);
  }
  size_t match_end = std::string_view::npos;

  TextStyle style{target.FontBold(), target.FontItalic(), target.FontUnderline()};
  double x = target.CurrentX();
  // A run is a stretch of the line drawn with one DrawText call; it ends
  // where the style or colour changes, and after each stretched space.
  size_t run_begin = std::string_view::npos;
  double run_x = 0;
  const auto flush = [&](size_t run_end) {
    if (run_begin == std::string_view::npos) return;
    target.SetCurrentX(run_x);
    target.DrawText(line.substr(run_begin, run_end - run_begin));
    run_begin = std::string_view::npos;
    target.SetCurrentX(x);
  };
  const auto set_colour = [&](uint32_t colour, size_t index) {
    if (colour == target.ForeColor()) return;
    flush(index);
    target.SetForeColor(colour);
  };

  bool started = false;
  for (size_t index = 0; index < line.size(); ++index) {
    if (index == match_end) {
      set_colour(ink, index);
      match_end = std::string_view::npos;
      match_start = matches->Find(index);
    }
    if (index == match_start) {
      set_colour(settings.highlight_colour, index);
      match_end = index + matches->length();
    }
    const auto code = static_cast<unsigned char>(line[index]);
    if (SwitchStyle(code, style) || line[index] == kCentre) {
      flush(index);
      target.SetFontBold(style.bold);
      target.SetFontItalic(style.italic);
      target.SetFontUnderline(style.underline);
      continue;
    }
    if (run_begin == std::string_view::npos) {
      run_begin = index;
      run_x = x;
    }
    x += metrics_ != nullptr ? metrics_->Width(style.bold, style.italic, code)
                             : GlyphWidth(style.bold, style.italic, code);
    if (line[index] != ' ') {
      started = true;
    } else if (justify && started) {
      // Stretch the space, and recompute the slice for the rest of the line
      // from here, so that rounding never accumulates.
      flush(index + 1);
      x += slice;
      target.SetCurrentX(x);
      if (index + 1 < line.size()) {
        slice = CalcSlice(x, line.substr(index + 1), settings.line_width, settings.left);
      }
    }
  }
  flush(line.size());
}

}  // namespace vireo
