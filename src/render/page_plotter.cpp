#include "render/page_plotter.h"

#include <string>

#include "book/cls_new_images.h"
#include "layout/font_metrics.h"
#include "prefs/reader_preferences.h"
#include "render/book_pages.h"
#include "render/page_buffers.h"
#include "render/page_pictures.h"
#include "render/surface.h"
#include "render/title_page.h"
#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr double kPageNumberPoints = 8;
// The page number's foot stands this far above the box's bottom edge.
constexpr double kPageNumberLift = 45;

}  // namespace

PagePlotter::PagePlotter(PageBuffers& buffers, const BookPages& book,
                         const ReaderPreferences& prefs, clsPrintPage& composer,
                         clsFontMetrics& metrics)
    : buffers_(buffers), book_(book), prefs_(prefs), composer_(composer), metrics_(metrics) {}

void PagePlotter::SetPageBorders() {
  vireo::SetPageBorders(buffers_.Box(0), prefs_.font_size, area_);
}

// Only the styles the book's text uses are measured; another book may
// need more of them later.
void PagePlotter::EnsureFontTables() {
  if (!font_tables_stale_ && measured_styles_.Covers(book_.styles)) return;
  font_tables_stale_ = false;
  measured_styles_ = book_.styles;
  metrics_.MakeArrays(buffers_.Box(kLeftPageBox), measured_styles_);
}

bool PagePlotter::BookLoaded() const { return book_.loaded; }

void PagePlotter::PlotOnPage(PageSide side, int box, int page) {
  EnsureFontTables();
  bool title_page = false;
  Trap("sub plotonpage", kModule, [&] {
    if (!book_.loaded) {
      title_page = true;
      return;
    }
    if (page < 1 || page > book_.PageCount()) return;
    if (box == kLeftPageBox) page == 1 ? ShowCover() : HideCover();
    ComposePage(side, box, page);
  });
  if (title_page) {
    DrawTitlePage();
  } else {
    buffers_.RefreshBox(box);
  }
}

void PagePlotter::ComposePage(PageSide side, int box, int page) {
  Surface& surface = buffers_.Box(box);
  SetTexture(box);
  surface.SetFontSize(prefs_.font_size);
  SetPageBorders();
  composing_surface_ = &surface;
  composer_.DisplayPage(SettingsFor(side, page, PageTarget::kScreen), surface, metrics_);
  composing_surface_ = nullptr;
  DrawPageNumber(surface, page);
}

PageSettings PagePlotter::SettingsFor(PageSide side, int page, PageTarget target) const {
  const PageContent content = book_.Page(page);
  PageSettings settings;
  settings.page_side = static_cast<int>(side);
  settings.page_text = content.text;
  settings.justify = prefs_.justify;
  settings.indented = prefs_.indented;
  settings.bold = content.bold;
  settings.italic = content.italic;
  settings.underline = content.underline;
  settings.line_width = area_.text_width;
  settings.left = area_.left_border;
  settings.top = area_.top_border;
  settings.lines_per_page = area_.lines_per_page;
  // The surface advances one line height itself; the gap comes on top.
  settings.line_step = area_.line_gap;
  settings.search_term = search_term_;
  settings.highlight_colour = prefs_.highlight_colour;
  settings.target = target;
  return settings;
}

std::vector<std::string> PagePlotter::PageLines(int page) {
  EnsureFontTables();
  std::vector<std::string> lines;
  Trap("sub pagelines", kModule, [&] {
    if (page < 1 || page > book_.PageCount()) return;
    composer_.ComposeLines(SettingsFor(PageSide::kLeft, page, PageTarget::kScreen), metrics_);
    lines = composer_.lines();
  });
  return lines;
}

void PagePlotter::PrintOnPage(int page, Surface& printer) {
  EnsureFontTables();
  Trap("sub printonpage", kModule, [&] {
    if (page < 1 || page > book_.PageCount()) return;
    const PageSettings settings = SettingsFor(PageSide::kLeft, page, PageTarget::kPrinter);
    composing_surface_ = &printer;
    printing_ = true;
    composer_.ComposeLines(settings, metrics_);
    composing_surface_ = nullptr;
    printing_ = false;
    printer.SetFontSize(prefs_.font_size);
    printer.SetForeColor(prefs_.ink_colour);
    composer_.PrintPage(settings, printer);
    DrawPageNumber(printer, page);
  });
}

void PagePlotter::AddImage(int, int image_number, double left, int line_index) {
  Trap("sub addimage", kModule, [&] {
    if (images_ == nullptr) return;
    const Picture* picture = images_->Image(image_number);
    if (picture == nullptr || picture->empty()) return;
    const TwipsSize size = PictureSizeOnPage(*picture, area_);
    const double top = area_.top_border + line_index * area_.line_pitch;
    images_->SetImageTop(top);
    // Composing only for the page's lines (copy, read aloud) draws nothing.
    if (composing_surface_ == nullptr) return;
    const double x = left + images_->ImageLeft();
    if (printing_) {
      composer_.PrintPictureBox(*composing_surface_, *picture, x, top, size.width, size.height);
    } else {
      composing_surface_->PaintPicture(*picture, x, top, size.width, size.height);
    }
  });
}

void PagePlotter::SetCover(const Picture* cover) {
  cover_ = cover != nullptr && !cover->empty() ? cover : nullptr;
  buffers_.ShowCoverPicture(cover_shown_ ? cover_ : nullptr);
}

void PagePlotter::ShowCover() {
  cover_shown_ = true;
  buffers_.ShowCoverPicture(cover_);
}

void PagePlotter::HideCover() {
  cover_shown_ = false;
  buffers_.ShowCoverPicture(nullptr);
}

// The number goes centred at the page's foot, 8 points, in the ink colour
// (not "PNColour", which is kept for the settings only), in plain style
// whatever the page's text left open.
void PagePlotter::DrawPageNumber(Surface& surface, int page) {
  const std::string number = std::to_string(page);
  surface.SetFontBold(false);
  surface.SetFontItalic(false);
  surface.SetFontUnderline(false);
  surface.SetFontSize(kPageNumberPoints);
  surface.SetCurrentY(surface.ScaleHeight() - (surface.TextHeight("!,") + kPageNumberLift));
  surface.SetCurrentX((surface.ScaleWidth() - surface.TextWidth(number)) / 2);
  surface.SetForeColor(prefs_.ink_colour);
  surface.DrawText(number);
}

void PagePlotter::ClearPage(int box) {
  Trap("sub clearpage", kModule, [&] { buffers_.Box(box).Clear(); });
  buffers_.RefreshBox(box);
}

void PagePlotter::SetPageColours() {
  Trap("sub setpagecolours", kModule, [&] {
    for (int box = 0; box < PageBuffers::kBoxCount; ++box) {
      buffers_.SetBoxBackColour(box, prefs_.paper_colour);
      buffers_.Box(box).SetForeColor(prefs_.ink_colour);
      SetTexture(box);
    }
  });
}

void PagePlotter::SetTexture(int box) {
  Trap("sub settexture", kModule,
       [&] { buffers_.SetBoxTexture(box, TextureSlot(prefs_.texture_num)); });
}

void PagePlotter::DrawTitlePage() {
  HideCover();  // the welcome page of an empty book has no cover
  Trap("DrawTitlePage", kModule, [&] {
    Surface& hints = buffers_.Box(kLeftPageBox);
    Surface& welcome = prefs_.single_page_mode ? hints : buffers_.Box(kRightPageBox);
    const TwipsSize list = buffers_.LanguageListSize();
    const auto placement =
        vireo::DrawTitlePage(welcome, hints, prefs_.ink_colour, list.width, list.height);
    if (placement) buffers_.PlaceLanguageList(*placement);
  });
  buffers_.RefreshBox(kLeftPageBox);
  buffers_.RefreshBox(kRightPageBox);
}

}  // namespace vireo
