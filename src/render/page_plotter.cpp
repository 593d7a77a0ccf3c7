#include "render/page_plotter.h"

#include <string>

#include "prefs/reader_preferences.h"
#include "render/page_boxes.h"
#include "render/print_page.h"
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

PagePlotter::PagePlotter(PageBoxes& boxes, const ReaderPreferences& prefs, clsPrintPage& composer,
                         const clsFontMetrics& metrics)
    : boxes_(boxes), prefs_(prefs), composer_(composer), metrics_(metrics) {}

void PagePlotter::SetPageBorders() {
  vireo::SetPageBorders(boxes_.Box(0), prefs_.font_size, area_);
}

void PagePlotter::PlotOnPage(int side, int box, int page) {
  bool title_page = false;
  Trap("sub plotonpage", kModule, [&] {
    if (!boxes_.BookLoaded()) {
      title_page = true;
      return;
    }
    if (page < 1 || page > boxes_.PageCount()) return;
    Surface& surface = boxes_.Box(box);
    SetTexture(box);
    surface.SetFontSize(prefs_.font_size);
    SetPageBorders();
    const PageContent content = boxes_.Page(page);
    PageSettings settings;
    settings.page_side = side;
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
    settings.search_term = boxes_.SearchTerm();
    settings.highlight_colour = prefs_.highlight_colour;
    settings.target = PageTarget::kScreen;
    composer_.DisplayPage(settings, surface, metrics_);
    boxes_.ShowCover(box, page);
    boxes_.UpdateSearchLabel();
    DrawPageNumber(box, page);
  });
  if (title_page) DrawTitlePage();
}

// The number goes centred at the page's foot, 8 points, in the ink colour
// (not "PNColour", which is kept for the settings only), in plain style
// whatever the page's text left open.
void PagePlotter::DrawPageNumber(int box, int page) {
  Surface& surface = boxes_.Box(box);
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
  Trap("sub clearpage", kModule, [&] { boxes_.Box(box).Clear(); });
}

void PagePlotter::SetPageColours() {
  Trap("sub setpagecolours", kModule, [&] {
    for (int box = 0; box < PageBoxes::kBoxCount; ++box) {
      boxes_.SetBoxBackColour(box, prefs_.paper_colour);
      boxes_.Box(box).SetForeColor(prefs_.ink_colour);
      SetTexture(box);
    }
  });
}

void PagePlotter::SetTexture(int box) {
  Trap("sub settexture", kModule,
       [&] { boxes_.SetBoxTexture(box, TextureSlot(prefs_.texture_num)); });
}

void PagePlotter::DrawTitlePage() {
  Trap("DrawTitlePage", kModule, [&] {
    Surface& hints = boxes_.Box(0);
    Surface& welcome = prefs_.single_page_mode ? hints : boxes_.Box(1);
    const TwipsSize list = boxes_.LanguageListSize();
    const auto placement =
        vireo::DrawTitlePage(welcome, hints, prefs_.ink_colour, list.width, list.height);
    if (placement) boxes_.PlaceLanguageList(*placement);
  });
}

}  // namespace vireo
