#include "render/print_page.h"

#include <algorithm>

#include "layout/font_metrics.h"
#include "render/surface.h"
#include "support/error_trap.h"
#include "support/translation.h"
#include "support/user_interaction.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsPrintPage";

}  // namespace

clsPrintPage::clsPrintPage(MessagePump& pump) : pump_(pump) {}

void clsPrintPage::ComposeAndDraw(std::string_view procedure, const PageSettings& settings,
                                  Surface& surface, const clsFontMetrics& metrics) {
  Trap(procedure, kModule, [&] {
    target_ = &surface;
    metrics_ = &metrics;
    printing_ = false;
    pump_.Yield();
    SetupFormatting(settings);
    ComposeLines(settings, metrics);
    surface.SetCurrentY(settings.top);
    PrintSentences(settings);
  });
}

void clsPrintPage::ComposeLines(const PageSettings& settings, const clsFontMetrics& metrics) {
  lines_.clear();
  picture_placed_ = false;
  // The line array holds lines per page + 10 lines.
  line_capacity_ = static_cast<size_t>(std::max(0, settings.lines_per_page + 10));
  lines_.reserve(line_capacity_);
  StoreSentences(settings, metrics);
}

void clsPrintPage::DisplayPage(const PageSettings& settings, Surface& surface,
                               const clsFontMetrics& metrics) {
  ComposeAndDraw("sub displaypage", settings, surface, metrics);
}

void clsPrintPage::OutputPage(const PageSettings& settings, Surface& surface,
                              const clsFontMetrics& metrics) {
  ComposeAndDraw("sub outputpage", settings, surface, metrics);
}

void clsPrintPage::PrintPage(const PageSettings& settings, Surface& printer) {
  Trap("sub printpage", kModule, [&] {
    target_ = &printer;
    metrics_ = nullptr;
    printing_ = true;
    SetupFormatting(settings);
    printer.SetCurrentY(settings.top);
    PrintSentences(settings);
  });
}

void clsPrintPage::PrintPictureBox(Surface& printer, const Picture& picture, double x, double y,
                                   double width, double height) {
  std::string failure;
  Trap("sub printpicturebox", kModule, [&] {
    try {
      printer.PaintPicture(picture, x, y, width, height);
    } catch (const RuntimeError& error) {
      failure = error.description();
      throw;
    }
  });
  if (!failure.empty() && user_ != nullptr) {
    user_->ShowMessage(failure, GetTranslation("Printer Error!"));
  }
}

void clsPrintPage::SetupFormatting(const PageSettings& settings) {
  Trap("sub setupformatting", kModule, [&] {
    Require(target_ != nullptr, ErrorNumber::kObjectNotSet);
    target_->SetFontBold(settings.bold);
    target_->SetFontItalic(settings.italic);
    target_->SetFontUnderline(settings.underline);
    justify_ = settings.justify;
    indented_ = settings.indented;
    search_term_ = settings.search_term;
  });
}

void clsPrintPage::PrintSentences(const PageSettings& settings) {
  Trap("sub printsentences", kModule, [&] {
    Require(target_ != nullptr, ErrorNumber::kObjectNotSet);
    for (const std::string& line : lines_) {
      target_->SetCurrentX(settings.left);
      NewPrintLine(settings, line);
      target_->SetCurrentY(target_->CurrentY() + settings.line_step);
    }
  });
}

std::string clsPrintPage::Cleaned(std::string_view text) {
  std::string cleaned;
  Trap("function cleaned", kModule, [&] {
    cleaned.reserve(text.size());
    for (const char c : text) {
      const auto code = static_cast<unsigned char>(c);
      if (code < 128 || code > 136) cleaned += c;
    }
  });
  return cleaned;
}

void clsPrintPage::StoreLine(std::string line) {
  // An empty first line of the page is dropped, unless a picture placed
  // above it needs it for room.
  if (lines_.empty() && !picture_placed_ && line.find_first_not_of(" \n") == std::string::npos) {
    return;
  }
  Require(lines_.size() < line_capacity_, ErrorNumber::kSubscriptOutOfRange);
  lines_.push_back(std::move(line));
}

void clsPrintPage::RaiseAddImage(int page_side, int image_number, double left) {
  picture_placed_ = true;
  if (observer_ != nullptr) {
    observer_->AddImage(page_side, image_number, left, static_cast<int>(lines_.size()));
  }
}

double clsPrintPage::GlyphWidth(bool bold, bool italic, unsigned char code) const {
  if (metrics_ != nullptr) return metrics_->Width(bold, italic, code);
  // The printer measures with its own font: switch it to the style asked
  // for, and back.
  const bool was_bold = target_->FontBold();
  const bool was_italic = target_->FontItalic();
  target_->SetFontBold(bold);
  target_->SetFontItalic(italic);
  const char c = static_cast<char>(code);
  const double width = target_->TextWidth(std::string_view(&c, 1));
  target_->SetFontBold(was_bold);
  target_->SetFontItalic(was_italic);
  return width;
}

}  // namespace vireo
